// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Vector.h"

#include <emmintrin.h>

namespace bc::simd {

// Every x86-64 machine has SSE2, and its arithmetic rounds like the scalar one does.
static_assert(sizeof(Vector) == 4 * sizeof(float));

inline __m128 load(const Vector& v) {
    return _mm_loadu_ps(&v.x);
}
inline void store(Vector& v, __m128 value) {
    _mm_storeu_ps(&v.x, value);
}
/// Lane by lane: mask ? a : b.
inline __m128 select(__m128 mask, __m128 a, __m128 b) {
    return _mm_or_ps(_mm_and_ps(mask, a), _mm_andnot_ps(mask, b));
}
/// Every component is a number of at most limit.
inline bool within(__m128 v, float limit) {
    const __m128 magnitude = _mm_andnot_ps(_mm_set1_ps(-0.0F), v);
    return _mm_movemask_ps(_mm_cmple_ps(magnitude, _mm_set1_ps(limit))) == 15;
}

}  // namespace bc::simd
