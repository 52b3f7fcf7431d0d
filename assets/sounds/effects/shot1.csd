<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Pistol and chaingun, first of four: a tight crack in the middle.
<CsInstruments>
#include "effect.orc"
giLevel = 0.2201

instr 1
  aNoise Noise
  aCrack butterbp aNoise, 1500, 1300
  aKnock Glide 420, 130, 0.05
  Finish tanh(aCrack * 2.5 * Strike(0.0008, 0.1) + aKnock * 1.1 * Strike(0.001, 0.09)), 0.0005, 0.03
endin
</CsInstruments>
<CsScore>
i 1 0 0.16
</CsScore>
</CsoundSynthesizer>
