<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Pistol and chaingun, third of four: lower.
<CsInstruments>
#include "effect.orc"
giLevel = 0.2049

instr 1
  aNoise Noise
  aCrack butterbp aNoise, 1050, 900
  aKnock Glide 340, 105, 0.055
  Finish tanh(aCrack * 2.6 * Strike(0.0008, 0.11) + aKnock * 1.2 * Strike(0.001, 0.1)), 0.0005, 0.03
endin
</CsInstruments>
<CsScore>
i 1 0 0.17
</CsScore>
</CsoundSynthesizer>
