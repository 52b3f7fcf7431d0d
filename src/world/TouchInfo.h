// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

namespace bc {

class Body;
struct Vector;

/// What Body::onTouch is told of a contact. Valid only during the call.
struct TouchInfo {
    Body* other = nullptr;
    Body* self = nullptr;
    /// Unit vector; the same for both bodies: from the second body of the pair towards the first.
    const Vector* normal = nullptr;
    /// Where the first body of the pair is at the moment of contact.
    const Vector* point = nullptr;
    /// Fraction of the step at which the bodies meet (0.125 to 1, in eighths), or minus the depth
    /// (world units, in eighths) by which they overlap already.
    float t = 0;
};

}  // namespace bc
