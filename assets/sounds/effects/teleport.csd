<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A teleporter: a whirl that winds up, turns inside out and is gone.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1033

instr 1
  kSpin expseg 6, 0.4, 42, 0.35, 9
  kFreq expseg 240, 0.35, 1300, 0.4, 180
  aRing poscil 1, kSpin * 7
  a1 vco2 0.6, kFreq, 4, 0.5
  aWhirl = a1 * aRing
  aPhase phaser1 aWhirl, 900 + 700 * lfo:k(1, k(a(kSpin)) * 0.25), 8, 0.7
  Finish aPhase * linseg:a(0, 0.08, 0.7, 0.28, 1, 0.39, 0), 0.005, 0.12
endin
</CsInstruments>
<CsScore>
i 1 0 0.75
</CsScore>
</CsoundSynthesizer>
