<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A blast: a crack, a body of noise that darkens, and a falling sub tone.
<CsInstruments>
#include "effect.orc"
giLevel = 0.07158

instr 1
  aNoise Noise
  kCut expseg 7000, 0.12, 1400, 0.9, 160
  aBody butterlp aNoise, kCut
  aBody = aBody * Strike(0.002, 1.7)
  aCrack butterhp aNoise, 2500
  aCrack = aCrack * Strike(0.001, 0.06)
  aSub Glide 130, 34, 0.5
  aSub = aSub * Strike(0.004, 1.3)
  aMix = tanh(aBody * 3.5 + aSub * 1.6 + aCrack * 0.8)
  Finish aMix, 0.001, 0.15
endin
</CsInstruments>
<CsScore>
i 1 0 1.3
</CsScore>
</CsoundSynthesizer>
