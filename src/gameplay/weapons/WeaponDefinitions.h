// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace bc {

/// The tuning numbers of data/weapons.xml, one record a weapon. Delays and lifetimes are
/// milliseconds, ranges, radii and spreads world units, speeds and knockbacks units a second.
/// Some numbers are read for completeness and drive nothing.
struct WeaponDefinitions {
    struct Pistol {
        int damage = 20;
        float delay = 500, knockback = 20, range = 8096;
        float dualDamage = 0, dualDelay = 0, dualKnockback = 0;
    };
    struct Scatter {
        int damage = 0;
        float delay = 0, knockback = 0, range = 8096, spread = 800;
    };
    struct Shotgun : Scatter {
        int numShots = 10;
    };
    struct Chaingun : Scatter {
        float explosionDamage = 0, explosionRadius = 0;
    };
    struct MagneticGun {
        int damage = 0;
        float delay = 0, radius = 0;
    };
    struct Grenade {
        int damage = 120;
        float delay = 800, radius = 32, mass = 5, lifetime = 3000, speed = 170;
        float bounceEnergy = 0.3F;
    };
    struct Rocket {
        int damage = 110;
        float delay = 900, radius = 32, speed = 400, knockback = 3;
    };
    struct Railgun {
        int damage = 100;
        float delay = 1000, knockback = 60, range = 8096;
    };

    Pistol pistol;
    Scatter plasmaGun{5, 66, 10};
    MagneticGun magneticGun;
    Shotgun shotgun{{10, 800, 8}};
    Chaingun chaingun{{12, 100, 20}};
    Grenade grenade;
    Rocket rocket;
    Railgun railgun;
    Scatter lightningGun{10, 900, 10};

    /// Reads the file over the values in force. A file that cannot be read changes nothing, a
    /// weapon without an element keeps its numbers, and a number out of range is cut (0 to a
    /// million; pushes may be negative); all of it is logged. False when the file cannot be read.
    bool load(const std::string& path);
};

/// The numbers in force.
[[nodiscard]] WeaponDefinitions& weaponDefinitions();

}  // namespace bc
