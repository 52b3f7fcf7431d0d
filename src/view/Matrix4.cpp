// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "view/Matrix4.h"

#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>

namespace bc {

Matrix4 Matrix4::perspective(double fovDegrees, double aspect, double nearDistance,
                             double farDistance) {
    const double half = fovDegrees * std::numbers::pi / 360.0;
    const double f = 1.0 / std::tan(half);
    Matrix4 r;
    r.m[0] = f / aspect;
    r.m[5] = f;
    r.m[10] = (farDistance + nearDistance) / (nearDistance - farDistance);
    r.m[11] = -1;
    r.m[14] = 2 * farDistance * nearDistance / (nearDistance - farDistance);
    r.m[15] = 0;
    return r;
}

Matrix4 Matrix4::ortho(double left, double right, double bottom, double top, double nearDistance,
                       double farDistance) {
    Matrix4 r;
    r.m[0] = 2 / (right - left);
    r.m[5] = 2 / (top - bottom);
    r.m[10] = -2 / (farDistance - nearDistance);
    r.m[12] = -(right + left) / (right - left);
    r.m[13] = -(top + bottom) / (top - bottom);
    r.m[14] = -(farDistance + nearDistance) / (farDistance - nearDistance);
    return r;
}

void Matrix4::translate(double x, double y, double z) {
    for (std::size_t row = 0; row < 4; ++row)
        m[12 + row] += m[row] * x + m[4 + row] * y + m[8 + row] * z;
}

void Matrix4::scale(double k) {
    for (std::size_t i = 0; i < 12; ++i)
        m[i] *= k;
}

void Matrix4::rotateZ(double radians) {
    const double c = std::cos(radians);
    const double s = std::sin(radians);
    for (std::size_t row = 0; row < 4; ++row) {
        const double x = m[row];
        const double y = m[4 + row];
        m[row] = x * c + y * s;
        m[4 + row] = y * c - x * s;
    }
}

std::array<double, 4> Matrix4::transform(double x, double y, double z, double w) const {
    std::array<double, 4> r{};
    for (std::size_t row = 0; row < 4; ++row)
        r[row] = m[row] * x + m[4 + row] * y + m[8 + row] * z + m[12 + row] * w;
    return r;
}

std::optional<Matrix4> Matrix4::inverse() const {
    // Gauss-Jordan elimination with partial pivoting: the steps that turn a into the identity turn
    // the identity r into the inverse of a.
    Matrix4 a = *this;
    Matrix4 r;
    const auto cell = [](Matrix4& matrix, std::size_t row, std::size_t column) -> double& {
        return matrix.m[column * 4 + row];
    };
    for (std::size_t column = 0; column < 4; ++column) {
        std::size_t pivot = column;
        for (std::size_t row = column + 1; row < 4; ++row)
            if (std::abs(cell(a, row, column)) > std::abs(cell(a, pivot, column)))
                pivot = row;
        const double value = cell(a, pivot, column);
        if (value == 0 || !std::isfinite(value))
            return std::nullopt;
        for (std::size_t i = 0; i < 4; ++i) {
            std::swap(cell(a, pivot, i), cell(a, column, i));
            std::swap(cell(r, pivot, i), cell(r, column, i));
        }
        for (std::size_t i = 0; i < 4; ++i) {
            cell(a, column, i) /= value;
            cell(r, column, i) /= value;
        }
        for (std::size_t row = 0; row < 4; ++row) {
            const double factor = cell(a, row, column);
            if (row == column || factor == 0)
                continue;
            for (std::size_t i = 0; i < 4; ++i) {
                cell(a, row, i) -= factor * cell(a, column, i);
                cell(r, row, i) -= factor * cell(r, column, i);
            }
        }
    }
    return r;
}

Matrix4 operator*(const Matrix4& a, const Matrix4& b) {
    Matrix4 r;
    for (std::size_t column = 0; column < 4; ++column)
        for (std::size_t row = 0; row < 4; ++row) {
            double sum = 0;
            for (std::size_t i = 0; i < 4; ++i)
                sum += a.m[i * 4 + row] * b.m[column * 4 + i];
            r.m[column * 4 + row] = sum;
        }
    return r;
}

}  // namespace bc
