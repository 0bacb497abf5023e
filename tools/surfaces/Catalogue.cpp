// The 48 surfaces, in menu order. Every one is used as a glow added over the lit planet,
// so the palettes stay in the lower-middle brightness range with sparing highlights.
#include "tools/surfaces/Atmosphere.h"
#include "tools/surfaces/GasGiant.h"
#include "tools/surfaces/Ice.h"
#include "tools/surfaces/Landscapes.h"
#include "tools/surfaces/Lava.h"
#include "tools/surfaces/Noise.h"
#include "tools/surfaces/Oddities.h"
#include "tools/surfaces/Rocky.h"
#include "tools/surfaces/SurfaceGenerator.h"
#include "tools/surfaces/Terran.h"

#include <cmath>

namespace orrery::surfaces {
namespace {

Shader greyMoon() {
    Rocky r;
    r.albedo = {{0.0, hex(0x4a4a4a)}, {0.5, hex(0x6a6866)}, {1.0, hex(0x858380)}};
    r.warpAmount = 0.15;
    r.contrast = 0.7;
    r.basinLevel = 0.22;
    r.basinColour = hex(0x3c3c40);
    r.craters = CraterField{0.7, 7, 0.9, 11};
    r.craterRelief = 0.16;
    r.ejecta = 0.18;
    r.seed = 10;
    return rocky(r);
}

Shader mercury() {
    Rocky r;
    r.albedo = {{0.0, hex(0x3b342e)}, {0.5, hex(0x5e544b)}, {1.0, hex(0x7e7368)}};
    r.warpAmount = 0.15;
    r.contrast = 0.7;
    r.craters = CraterField{0.8, 7, 1.0, 21};
    r.craterRelief = 0.18;
    r.ejecta = 0.12;
    r.seed = 20;
    return rocky(r);
}

Shader mars() {
    Rocky r;
    r.albedo = {
        {0.0, hex(0x4a1e10)}, {0.45, hex(0x8a3c1c)}, {0.7, hex(0xa0522a)}, {1.0, hex(0xb06a3c)}};
    r.basinLevel = 0.15;
    r.basinColour = hex(0x5a2a18);
    r.ridges = 0.35;
    r.craters = CraterField{0.5, 3, 0.35, 31};
    r.craterRelief = 0.1;
    r.polarCaps = 0.96;
    r.capColour = hex(0xa8a09a);
    r.seed = 30;
    return rocky(r);
}

Shader terra() {
    Terran t;
    t.seaLevel = 0.08;
    t.continentScale = 1.2;
    t.moisture = 0.1;
    t.ocean = {{0.0, hex(0x1d5a7a)}, {0.25, hex(0x123e66)}, {1.0, hex(0x071c3c)}};
    t.land = {
        {0.0, hex(0x9a7a4a)}, {0.35, hex(0x7a7038)}, {0.6, hex(0x3e5a24)}, {1.0, hex(0x1e3a18)}};
    t.highland = hex(0x5a4a3a);
    t.snow = hex(0x9ca4ac);
    t.clouds = 0.35;
    t.cloudColour = hex(0xaab0b8);
    t.seed = 40;
    return terran(t);
}

Shader jupiter() {
    GasGiant g;
    g.palette = {{0.0, hex(0x5a3422)},
                 {0.3, hex(0x7a4a30)},
                 {0.55, hex(0xa07850)},
                 {0.75, hex(0xbca07c)},
                 {1.0, hex(0xc8b494)}};
    g.bands = 6.0;
    g.sharpness = 0.9;
    g.turbulence = 0.07;
    g.swirl = 0.8;
    g.storms = {{-22.0, 60.0, 0.1, 1.5, 4.0, hex(0xa8502e), 0.85}};
    g.scatteredStorms = 14;
    g.scatteredTint = hex(0xc8bca8);
    g.seed = 50;
    return gasGiant(g);
}

Shader saturn() {
    GasGiant g;
    g.palette = {
        {0.0, hex(0x6e5a3a)}, {0.4, hex(0x977e53)}, {0.7, hex(0xa79065)}, {1.0, hex(0x7c6848)}};
    g.bands = 11.0;
    g.turbulence = 0.02;
    g.streaks = 0.08;
    g.swirl = 0.3;
    g.polarDarkening = 0.35;
    g.seed = 60;
    return gasGiant(g);
}

Shader neptune() {
    GasGiant g;
    g.palette = {
        {0.0, hex(0x0e2460)}, {0.4, hex(0x1c3c8a)}, {0.7, hex(0x2a52a4)}, {1.0, hex(0x183274)}};
    g.bands = 5.0;
    g.turbulence = 0.06;
    g.streaks = 0.12;
    g.storms = {{-20.0, 200.0, 0.12, 1.6, 3.0, hex(0x0a1640), 0.8},
                {-42.0, 120.0, 0.04, 2.0, 2.0, hex(0x8aa0c8), 0.6}};
    g.scatteredStorms = 4;
    g.scatteredTint = hex(0x7a92c0);
    g.seed = 70;
    return gasGiant(g);
}

Shader uranus() {
    GasGiant g;
    g.palette = {{0.0, hex(0x2a5e68)}, {0.5, hex(0x3a7078)}, {1.0, hex(0x4a8088)}};
    g.bands = 4.0;
    g.turbulence = 0.02;
    g.streaks = 0.04;
    g.swirl = 0.2;
    g.polarDarkening = -0.15;
    g.seed = 80;
    return gasGiant(g);
}

Shader venus() {
    Atmosphere a;
    a.palette = {
        {0.0, hex(0x5f4319)}, {0.4, hex(0x8b682f)}, {0.7, hex(0xa28548)}, {1.0, hex(0xb0995f)}};
    a.frequency = 1.8;
    a.swirl = 0.5;
    a.banding = 0.35;
    a.seed = 90;
    return atmosphere(a);
}

Shader europa() {
    Ice i;
    i.ice = {{0.0, hex(0x686153)}, {0.5, hex(0x7d7666)}, {1.0, hex(0x8b8676)}};
    i.lines = hex(0x5d331e);
    i.lineStrength = 0.85;
    i.chaos = 0.12;
    i.chaosColour = hex(0x6b4f3a);
    i.seed = 110;
    return ice(i);
}

Shader lavaWorld() {
    Lava l;
    l.crust = {{0.0, hex(0x0c0a0a)}, {0.5, hex(0x1e1a18)}, {1.0, hex(0x3a3230)}};
    l.glow = {{0.0, hex(0x5a0a02)}, {0.5, hex(0xc83a08)}, {1.0, hex(0xffa030)}};
    l.plates = 4.0;
    l.seed = 120;
    return lava(l);
}

Shader oceanWorld() {
    Terran t;
    t.seaLevel = 0.32;
    t.cloudOpacity = 0.5;
    t.ocean = {{0.0, hex(0x1a6a7a)}, {0.2, hex(0x12466e)}, {1.0, hex(0x061a40)}};
    t.land = {{0.0, hex(0x8a7a50)}, {1.0, hex(0x2e5a2a)}};
    t.highland = hex(0x4a4a3a);
    t.snow = hex(0xa8b4c0);
    t.clouds = 0.28;
    t.cloudColour = hex(0xaab4c0);
    t.seed = 130;
    return terran(t);
}

Shader cycloneGiant() {
    GasGiant g;
    g.palette = {
        {0.0, hex(0x0a3a4a)}, {0.35, hex(0x16606a)}, {0.65, hex(0x2a8080)}, {1.0, hex(0x124a5a)}};
    g.bands = 7.0;
    g.turbulence = 0.07;
    g.swirl = 0.9;
    g.storms = {{30.0, 40.0, 0.1, 1.3, 5.0, hex(0x6ab0b0), 0.5},
                {-35.0, 220.0, 0.12, 1.3, -5.0, hex(0x0a2a36), 0.6}};
    g.scatteredStorms = 24;
    g.scatteredTint = hex(0x5aa0a4);
    g.seed = 140;
    return gasGiant(g);
}

Shader toxicHaze() {
    Atmosphere a;
    a.palette = {{0.0, hex(0x1a2606)},
                 {0.35, hex(0x3e5410)},
                 {0.65, hex(0x7a8a18)},
                 {0.85, hex(0x9a9a3a)},
                 {1.0, hex(0x6a7a20)}};
    a.frequency = 1.6;
    a.swirl = 0.7;
    a.stretch = 2.0;
    a.contrast = 1.4;
    a.banding = 0.25;
    a.seed = 160;
    return atmosphere(a);
}

Shader snowball() {
    Ice i;
    i.ice = {{0.0, hex(0x4c5a69)}, {0.5, hex(0x687585)}, {1.0, hex(0x808b97)}};
    i.lines = hex(0x243142);
    i.lineFrequency = 1.8;
    i.lineStrength = 0.6;
    i.chaos = 0.1;
    i.chaosColour = hex(0x3f3f46);
    i.seed = 170;
    return ice(i);
}

Shader carbonAsteroid() {
    Rocky r;
    r.albedo = {{0.0, hex(0x1e1a18)}, {0.5, hex(0x2e2a26)}, {1.0, hex(0x463e36)}};
    r.ridges = 0.5;
    r.craters = CraterField{0.9, 7, 1.0, 181};
    r.craterRelief = 0.3;
    r.ejecta = 0.1;
    r.grain = 0.1;
    r.seed = 180;
    return rocky(r);
}

Shader hotJupiter() {
    GasGiant g;
    g.palette = {{0.0, hex(0x2a0806)},
                 {0.3, hex(0x5a120a)},
                 {0.55, hex(0x8a2a10)},
                 {0.75, hex(0xc05a1a)},
                 {1.0, hex(0x3a0a08)}};
    g.bands = 8.0;
    g.turbulence = 0.07;
    g.swirl = 1.0;
    g.streaks = 0.12;
    g.polarDarkening = 0.5;
    g.seed = 190;
    return gasGiant(g);
}

Shader violetGiant() {
    GasGiant g;
    g.palette = {{0.0, hex(0x2a1044)},
                 {0.35, hex(0x5a2a7a)},
                 {0.6, hex(0x8a5aa0)},
                 {0.8, hex(0x6a2a6a)},
                 {1.0, hex(0x3a1a5a)}};
    g.bands = 7.0;
    g.turbulence = 0.06;
    g.scatteredStorms = 6;
    g.scatteredTint = hex(0xa080b8);
    g.seed = 200;
    return gasGiant(g);
}

Shader jungle() {
    Terran t;
    t.seaLevel = -0.12;
    t.moisture = 0.35;
    t.temperature = 0.5;
    t.ocean = {{0.0, hex(0x1a5a5a)}, {0.3, hex(0x0e3a50)}, {1.0, hex(0x06203a)}};
    t.land = {{0.0, hex(0x5a6a2a)}, {0.5, hex(0x2a5a1a)}, {1.0, hex(0x123a10)}};
    t.highland = hex(0x2a3a20);
    t.snow = hex(0x9aa4a0);
    t.clouds = 0.35;
    t.cloudOpacity = 0.45;
    t.cloudColour = hex(0xa4aca8);
    t.seed = 210;
    return terran(t);
}

Shader archipelago() {
    Terran t;
    t.seaLevel = 0.18;
    t.continentScale = 4.0;
    t.temperature = 0.3;
    t.ocean = {
        {0.0, hex(0x1e8a8a)}, {0.15, hex(0x146a80)}, {0.5, hex(0x0c3a66)}, {1.0, hex(0x08244a)}};
    t.land = {{0.0, hex(0x9a8a5a)}, {0.5, hex(0x4a7a30)}, {1.0, hex(0x2a5a22)}};
    t.highland = hex(0x4a5a38);
    t.snow = hex(0xa8b0b8);
    t.clouds = 0.2;
    t.cloudColour = hex(0xb0b8c0);
    t.seed = 220;
    return terran(t);
}

Shader ashWorld() {
    Lava l;
    l.crust = {{0.0, hex(0x1e1e20)}, {0.5, hex(0x3a3a3c)}, {1.0, hex(0x58585a)}};
    l.glow = {{0.0, hex(0x3a0c04)}, {0.6, hex(0x9a2a06)}, {1.0, hex(0xe86a1a)}};
    l.plates = 3.0;
    l.crackWidth = 0.035;
    l.glowStrength = 0.9;
    l.seed = 250;
    return lava(l);
}

Shader glacier() {
    Ice i;
    i.ice = {{0.0, hex(0x29516c)}, {0.5, hex(0x517990)}, {1.0, hex(0x6e90a4)}};
    i.lines = hex(0x0d2643);
    i.lineFrequency = 3.5;
    i.lineStrength = 0.9;
    i.lineWidth = 0.07;

    i.seed = 260;
    return ice(i);
}

Shader ironWorld() {
    Rocky r;
    r.albedo = {
        {0.0, hex(0x1a1c22)}, {0.4, hex(0x33363e)}, {0.7, hex(0x4e525a)}, {1.0, hex(0x6a6e74)}};
    r.ridges = 0.6;
    r.warpAmount = 0.6;
    r.contrast = 1.2;
    r.basinLevel = 0.3;
    r.basinScale = 5.0;
    r.basinColour = hex(0x7a3414);
    r.craters = CraterField{0.5, 4, 0.5, 271};
    r.grain = 0.12;
    r.seed = 270;
    return rocky(r);
}

Shader emeraldGiant() {
    GasGiant g;
    g.palette = {{0.0, hex(0x0a2a1a)},
                 {0.3, hex(0x1a5a34)},
                 {0.55, hex(0x3a8a4a)},
                 {0.75, hex(0x6a9a5a)},
                 {1.0, hex(0x14402a)}};
    g.bands = 10.0;
    g.turbulence = 0.05;
    g.swirl = 0.8;
    g.storms = {{18.0, 300.0, 0.07, 1.8, -3.5, hex(0x8ab070), 0.6}};
    g.seed = 280;
    return gasGiant(g);
}

Shader stormGiant() {
    GasGiant g;
    g.palette = {
        {0.0, hex(0x3a2e24)}, {0.35, hex(0x5a4a3a)}, {0.6, hex(0x7a6a56)}, {1.0, hex(0x4a3c30)}};
    g.bands = 8.0;
    g.turbulence = 0.08;
    g.swirl = 1.0;
    g.scatteredStorms = 40;
    g.scatteredTint = hex(0xb0a898);
    g.seed = 290;
    return gasGiant(g);
}

Shader ganymede() {
    Rocky r;
    r.albedo = {{0.0, hex(0x2e2620)}, {0.5, hex(0x4a4038)}, {1.0, hex(0x625850)}};
    r.ridges = 0.5;
    r.frequency = 2.2;
    r.warpAmount = 0.15;
    r.contrast = 0.8;
    r.basinLevel = 0.1;
    r.basinScale = 2.6;
    r.basinColour = hex(0x8a8478);
    r.craters = CraterField{0.6, 6, 0.8, 301};
    r.craterRelief = 0.12;
    r.ejecta = 0.35;
    r.seed = 300;
    return rocky(r);
}

Shader sulphurSeas() {
    Terran t;
    t.seaLevel = 0.05;
    t.temperature = 0.5;
    t.ocean = {{0.0, hex(0xa08a1a)}, {0.3, hex(0x7a6a12)}, {1.0, hex(0x4a400a)}};
    t.land = {{0.0, hex(0x3a3024)}, {1.0, hex(0x2e2a1e)}};
    t.highland = hex(0x4a4036);
    t.snow = hex(0x8a8a6a);
    t.clouds = 0.15;
    t.cloudColour = hex(0x9aa04a);
    t.seed = 310;
    return terran(t);
}

Shader magmaOcean() {
    Lava l;
    l.crust = {{0.0, hex(0x100806)}, {1.0, hex(0x2a1a14)}};
    l.glow = {{0.0, hex(0x4a0a04)}, {0.6, hex(0x8a2006)}, {1.0, hex(0xc85a14)}};
    l.plates = 7.0;
    l.crackWidth = 0.1;
    l.seas = 0.1;
    l.glowStrength = 0.8;
    l.seed = 320;
    return lava(l);
}

Shader crimsonFlora() {
    Terran t;
    t.moisture = 0.2;
    t.temperature = 0.1;
    t.ocean = {{0.0, hex(0x263056)}, {0.3, hex(0x18203e)}, {1.0, hex(0x0c1028)}};
    t.land = {
        {0.0, hex(0x5a4434)}, {0.4, hex(0x6a2a30)}, {0.7, hex(0x4e1a2c)}, {1.0, hex(0x361022)}};
    t.highland = hex(0x3a2a2a);
    t.snow = hex(0x8a8494);
    t.clouds = 0.2;
    t.cloudColour = hex(0x948a98);
    t.seed = 350;
    return terran(t);
}

Shader titan() {
    Atmosphere a;
    a.palette = {{0.0, hex(0x5a3410)}, {0.5, hex(0x8a5a20)}, {1.0, hex(0xa0742e)}};
    a.frequency = 1.5;
    a.swirl = 0.6;
    a.contrast = 1.3;
    a.detail = 0.15;
    a.banding = 0.5;
    a.bandFrequency = 4.0;
    a.polarDarkening = 0.35;
    a.seed = 360;
    return atmosphere(a);
}

Shader cloudTops() {
    Atmosphere a;
    a.palette = {
        {0.0, hex(0x2a3a5a)}, {0.45, hex(0x5a6a84)}, {0.7, hex(0x8a94a8)}, {1.0, hex(0xa8b0c0)}};
    a.frequency = 2.4;
    a.swirl = 0.6;
    a.stretch = 1.6;
    a.banding = 0.2;
    a.contrast = 1.3;
    a.seed = 380;
    return atmosphere(a);
}

Shader auroraGiant() {
    GasGiant g;
    g.palette = {
        {0.0, hex(0x080c22)}, {0.4, hex(0x101c40)}, {0.7, hex(0x1a2e58)}, {1.0, hex(0x24406a)}};
    g.bands = 5.0;
    g.turbulence = 0.06;
    g.streaks = 0.12;
    g.polarDarkening = 0.2;
    g.seed = 390;
    // Curtains of light ring both magnetic poles.
    const Shader giant = gasGiant(g);
    const Vec3 o = seedOffset(391);
    return [giant, o](const Vec3& p) {
        const double ring =
            std::exp(-std::pow((std::abs(p.y) - 0.93 - 0.015 * fbm(p * 6.0 + o, 3)) / 0.025, 2.0));
        const double curtains = 0.4 + 0.6 * std::pow(0.5 + 0.5 * simplex(p * 40.0 + o), 2.0);
        return giant(p) + hex(0x2ad49a) * (0.55 * ring * curtains);
    };
}

Shader tundra() {
    Rocky r;
    r.albedo = {
        {0.0, hex(0x2a2c22)}, {0.4, hex(0x4a4a36)}, {0.7, hex(0x5e5a46)}, {1.0, hex(0x7a7464)}};
    r.ridges = 0.5;
    r.frequency = 2.5;
    r.basinLevel = 0.25;
    r.basinScale = 4.0;
    r.basinColour = hex(0x5a6e7a);
    r.polarCaps = 0.95;
    r.capColour = hex(0x8a929a);
    r.seed = 400;
    return rocky(r);
}

Shader basaltPlains() {
    Rocky r;
    r.albedo = {{0.0, hex(0x14181e)}, {0.5, hex(0x262c34)}, {1.0, hex(0x4a4e52)}};
    r.warpAmount = 1.0;
    r.ridges = 0.2;
    r.basinLevel = 0.25;
    r.basinScale = 3.0;
    r.basinColour = hex(0x5a5048);
    r.craters = CraterField{0.4, 3, 0.4, 411};
    r.craterRelief = 0.1;
    r.seed = 410;
    return rocky(r);
}

Shader coralShallows() {
    Terran t;
    t.seaLevel = 0.22;
    t.continentScale = 3.0;
    t.temperature = 0.4;
    t.ocean = {
        {0.0, hex(0xa05a6a)}, {0.08, hex(0x2a9a94)}, {0.3, hex(0x13707a)}, {1.0, hex(0x0a3050)}};
    t.land = {{0.0, hex(0xa08a6a)}, {1.0, hex(0x5a7a4a)}};
    t.highland = hex(0x6a6a5a);
    t.snow = hex(0xa8b0b8);
    t.clouds = 0.15;
    t.cloudColour = hex(0xb0b8c0);
    t.seed = 420;
    return terran(t);
}

Shader savanna() {
    Terran t;
    t.seaLevel = -0.2;
    t.moisture = -0.25;
    t.temperature = 0.25;
    t.ocean = {{0.0, hex(0x2a5a5a)}, {1.0, hex(0x0e2a40)}};
    t.land = {
        {0.0, hex(0x9a7a44)}, {0.4, hex(0x8a7a3a)}, {0.7, hex(0x6a6a2a)}, {1.0, hex(0x3a4a1a)}};
    t.highland = hex(0x6a4a30);
    t.snow = hex(0x8a8a84);
    t.clouds = 0.15;
    t.cloudColour = hex(0xb0b0a8);
    t.seed = 430;
    return terran(t);
}

Shader amberGiant() {
    GasGiant g;
    g.palette = {{0.0, hex(0x6a5a4a)},
                 {0.3, hex(0xa08a60)},
                 {0.5, hex(0xb49a6a)},
                 {0.7, hex(0x5a6a7a)},
                 {1.0, hex(0x8a7a5a)}};
    g.bands = 7.0;
    g.sharpness = 0.8;
    g.turbulence = 0.05;
    g.streaks = 0.1;
    g.swirl = 0.5;
    g.seed = 440;
    return gasGiant(g);
}

Shader swamp() {
    Terran t;
    t.seaLevel = 0.02;
    t.continentScale = 5.0;
    t.moisture = 0.4;
    t.temperature = 0.7;
    t.ocean = {{0.0, hex(0x2a3a1a)}, {0.4, hex(0x1a2a14)}, {1.0, hex(0x0e1a10)}};
    t.land = {{0.0, hex(0x4a4a2a)}, {0.5, hex(0x3a4a22)}, {1.0, hex(0x243a18)}};
    t.highland = hex(0x3a3222);
    t.snow = hex(0x8a9a8a);
    t.clouds = 0.45;
    t.cloudOpacity = 0.3;
    t.cloudColour = hex(0x7a8a6a);
    t.seed = 460;
    return terran(t);
}

Shader marbleGiant() {
    Atmosphere a;
    a.palette = {{0.0, hex(0x2a3a6a)},
                 {0.3, hex(0x5a4a7a)},
                 {0.5, hex(0x8a5a7a)},
                 {0.7, hex(0x4a7a8a)},
                 {1.0, hex(0x9a7a8a)}};
    a.frequency = 2.0;
    a.swirl = 0.8;
    a.stretch = 1.8;
    a.banding = 0.3;
    a.seed = 470;
    return atmosphere(a);
}

Shader deadWorld() {
    Rocky r;
    r.albedo = {{0.0, hex(0x3a2a1e)}, {0.5, hex(0x6a5238)}, {1.0, hex(0x8a6e4a)}};
    r.basinLevel = 0.2;
    r.basinScale = 2.4;
    r.basinColour = hex(0x7a6e58);
    r.craters = CraterField{0.5, 4, 0.6, 481};
    r.craterRelief = 0.12;
    r.seed = 480;
    return rocky(r);
}

} // namespace

const std::vector<SurfaceRecipe>& surfaceRecipes() {
    static const std::vector<SurfaceRecipe> recipes = {
        {"Grey Moon", greyMoon},
        {"Mercury", mercury},
        {"Mars", mars},
        {"Terra", terra},
        {"Jupiter", jupiter},
        {"Saturn", saturn},
        {"Neptune", neptune},
        {"Uranus", uranus},
        {"Venus", venus},
        {"Volcanic Moon", volcanicMoon},
        {"Europa", europa},
        {"Lava World", lavaWorld},
        {"Ocean World", oceanWorld},
        {"Cyclone Giant", cycloneGiant},
        {"Dune Sea", duneSea},
        {"Toxic Haze", toxicHaze},
        {"Snowball", snowball},
        {"Carbon Asteroid", carbonAsteroid},
        {"Hot Jupiter", hotJupiter},
        {"Violet Giant", violetGiant},
        {"Jungle", jungle},
        {"Archipelago", archipelago},
        {"Canyonlands", canyonlands},
        {"Salt Flats", saltFlats},
        {"Ash World", ashWorld},
        {"Glacier", glacier},
        {"Iron World", ironWorld},
        {"Emerald Giant", emeraldGiant},
        {"Storm Giant", stormGiant},
        {"Ganymede", ganymede},
        {"Sulphur Seas", sulphurSeas},
        {"Magma Ocean", magmaOcean},
        {"Crystal World", crystalWorld},
        {"Eyeball", eyeball},
        {"Crimson Flora", crimsonFlora},
        {"Titan", titan},
        {"Frost Heart", frostHeart},
        {"Cloud Tops", cloudTops},
        {"Aurora Giant", auroraGiant},
        {"Tundra", tundra},
        {"Basalt Plains", basaltPlains},
        {"Coral Shallows", coralShallows},
        {"Savanna", savanna},
        {"Amber Giant", amberGiant},
        {"Obsidian", obsidian},
        {"Swamp", swamp},
        {"Marble Giant", marbleGiant},
        {"Dead World", deadWorld},
    };
    return recipes;
}

} // namespace orrery::surfaces
