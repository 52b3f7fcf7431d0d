<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; An upgrade level: a short fanfare of four steps.
<CsInstruments>
#include "effect.orc"
giLevel = 0.133

instr 1
  kPitch linseg 293.66, 0.16, 293.66, 0.001, 440, 0.16, 440, 0.001, 392, 0.1, 392, 0.001, 587.33, 1, 587.33
  a1 vco2 0.35, kPitch, 0
  a2 vco2 0.35, kPitch * 1.004, 0
  a3 vco2 0.3, kPitch * 0.5, 10
  aBrass moogladder2 a1 + a2 + a3, 900 + 2600 * linseg:k(0, 0.03, 1, 0.1, 0.5, 0.3, 0.9, 0.7, 0.1), 0.15
  aDip linseg 0, 0.015, 1, 0.12, 0.8, 0.025, 0.25, 0.015, 1, 0.12, 0.8, 0.025, 0.25, 0.015, 1, 0.06, 0.8, 0.025, 0.25, 0.02, 1, 0.4, 0.8, 0.34, 0
  aGloss poscil 0.12, kPitch * 4
  Finish (aBrass + aGloss) * aDip, 0.005, 0.15
endin
</CsInstruments>
<CsScore>
i 1 0 1.2
</CsScore>
</CsoundSynthesizer>
