<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Pistol and chaingun, second of four: brighter.
<CsInstruments>
#include "effect.orc"
giLevel = 0.2344

instr 1
  aNoise Noise
  aCrack butterbp aNoise, 2300, 1900
  aKnock Glide 520, 170, 0.045
  Finish tanh(aCrack * 2.5 * Strike(0.0008, 0.09) + aKnock * 1.1 * Strike(0.001, 0.08)), 0.0005, 0.03
endin
</CsInstruments>
<CsScore>
i 1 0 0.16
</CsScore>
</CsoundSynthesizer>
