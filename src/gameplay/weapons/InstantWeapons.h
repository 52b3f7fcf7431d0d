// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "gameplay/weapons/FireableWeapon.h"

namespace bc {

// The weapons whose shots arrive as they are fired, with the numbers of the definitions in force.
// They differ in their numbers, in whether the shots scatter, in how many a pull of the trigger
// fires and in what is seen and heard of it.

class PistolWeapon final : public FireableWeapon {
  public:
    PistolWeapon() { PistolWeapon::applyDefinitions(); }
    bool fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) override;
    void applyDefinitions() override;
};

class PlasmaWeapon final : public FireableWeapon {
  public:
    PlasmaWeapon() { PlasmaWeapon::applyDefinitions(); }
    bool fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) override;
    void applyDefinitions() override;
};

class ShotgunWeapon final : public FireableWeapon {
  public:
    /// More pellets than this are not fired at once, whatever the definitions say.
    static constexpr int maxShots = 100;

    ShotgunWeapon() { ShotgunWeapon::applyDefinitions(); }
    bool fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) override;
    void applyDefinitions() override;
    void dumpState(TiXmlElement& e) const override;

    /// Pellets a shot.
    int shots = 0;
};

class ChaingunWeapon final : public FireableWeapon {
  public:
    ChaingunWeapon() { ChaingunWeapon::applyDefinitions(); }
    bool fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) override;
    void applyDefinitions() override;
};

/// Shoots through every game body in its way.
class RailgunWeapon final : public FireableWeapon {
  public:
    RailgunWeapon() { RailgunWeapon::applyDefinitions(); }
    bool fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) override;
    void applyDefinitions() override;
};

/// Hums from the first shot until the trigger is let go.
class LightningWeapon final : public FireableWeapon {
  public:
    LightningWeapon() { LightningWeapon::applyDefinitions(); }
    ~LightningWeapon() override;
    bool fire(GameBody* shooter, const Vector& position, const Vector& aim, float time) override;
    void unfire(float time) override;
    void reset() override;
    void applyDefinitions() override;
    void dumpState(TiXmlElement& e) const override;

    /// The mixing channel of the hum, -1 for none.
    int soundChannel = -1;
    bool soundPlaying = false;

  private:
    void startHum(const Vector& position);
    void stopHum();
};

}  // namespace bc
