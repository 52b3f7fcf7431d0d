<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; An electric grid comes up: mains hum that swells and sharpens.
<CsInstruments>
#include "effect.orc"
giLevel = 0.5045

instr 1
  kFreq expseg 55, 0.35, 110, 0.1, 110
  aSaw vco2 0.6, kFreq, 0
  kCut expseg 300, 0.4, 3800, 0.1, 3800
  aHum moogladder2 aSaw, kCut, 0.5
  Finish aHum * linseg:a(0, 0.33, 1, 0.11, 0), 0.01, 0.06
endin
</CsInstruments>
<CsScore>
i 1 0 0.45
</CsScore>
</CsoundSynthesizer>
