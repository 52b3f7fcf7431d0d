<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; The railgun: a whip crack and a bright tone that tears downwards and rings.
<CsInstruments>
#include "effect.orc"
giLevel = 0.2094

instr 1
  aNoise Noise
  aCrack butterhp aNoise, 3000
  aCrack = aCrack * Strike(0.0005, 0.05)
  kFreq expseg 3200, 0.25, 420, 0.6, 300
  a1 vco2 0.5, kFreq, 0
  a2 vco2 0.5, kFreq * 1.007, 0
  aTear comb a1 + a2, 0.35, 0.0052
  aTear butterhp aTear, 250
  aMix = aCrack * 1.2 + aTear * 0.16 * Strike(0.002, 0.8)
  Finish tanh(aMix * 1.5), 0.001, 0.15
endin
</CsInstruments>
<CsScore>
i 1 0 0.85
</CsScore>
</CsoundSynthesizer>
