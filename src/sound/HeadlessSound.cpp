// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "sound/HeadlessSound.h"

#include "sound/VirtualMixer.h"

namespace bc {

HeadlessSound::HeadlessSound() : Sound(std::make_unique<VirtualMixer>()) {}

}  // namespace bc
