// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>

namespace bc {

/// A 4 x 4 transformation for column vectors, stored column by column as OpenGL expects it. Double
/// precision, because unprojecting inverts products of these, where single precision is too coarse.
/// It starts as the identity.
struct Matrix4 {
    std::array<double, 16> m{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

    [[nodiscard]] double at(int row, int column) const {
        return m[static_cast<std::size_t>(column * 4 + row)];
    }

    /// The matrices of gluPerspective and glOrtho. fovDegrees is the whole vertical field of view.
    [[nodiscard]] static Matrix4 perspective(double fovDegrees, double aspect, double nearDistance,
                                             double farDistance);
    [[nodiscard]] static Matrix4 ortho(double left, double right, double bottom, double top,
                                       double nearDistance, double farDistance);

    // These multiply the matrix from the right: points are transformed by the new factor first.
    void translate(double x, double y, double z);
    void scale(double k);
    /// Counter-clockwise about the z axis.
    void rotateZ(double radians);

    /// The matrix times the column vector.
    [[nodiscard]] std::array<double, 4> transform(double x, double y, double z, double w) const;
    /// Nothing when the matrix has no inverse.
    [[nodiscard]] std::optional<Matrix4> inverse() const;

    friend bool operator==(const Matrix4&, const Matrix4&) = default;
};

[[nodiscard]] Matrix4 operator*(const Matrix4& a, const Matrix4& b);

}  // namespace bc
