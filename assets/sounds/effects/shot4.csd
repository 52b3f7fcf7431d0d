<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Pistol and chaingun, fourth of four: dry and hard.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1801

instr 1
  aNoise Noise
  aCrack butterbp aNoise, 3100, 2600
  aKnock Glide 460, 95, 0.04
  Finish tanh(aCrack * 2.7 * Strike(0.0008, 0.07) + aKnock * 1.4 * Strike(0.001, 0.1)), 0.0005, 0.03
endin
</CsInstruments>
<CsScore>
i 1 0 0.16
</CsScore>
</CsoundSynthesizer>
