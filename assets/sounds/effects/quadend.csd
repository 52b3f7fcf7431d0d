<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Quad damage runs out: the power winds down.
<CsInstruments>
#include "effect.orc"
giLevel = 0.2343

instr 1
  kFreq expseg 330, 0.75, 46, 0.1, 44
  a1 vco2 0.5, kFreq, 0
  a2 vco2 0.5, kFreq * 0.503, 2, 0.35
  kCut expseg 2600, 0.8, 160
  aDown moogladder2 a1 + a2, kCut, 0.45
  aTrem = 0.75 + 0.25 * lfo:a(1, 11)
  Finish aDown * aTrem * linseg:a(0, 0.01, 1, 0.5, 0.8, 0.29, 0), 0.005, 0.15
endin
</CsInstruments>
<CsScore>
i 1 0 0.8
</CsScore>
</CsoundSynthesizer>
