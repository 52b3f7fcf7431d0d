<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Armour taken: a plate of metal locks on.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1112

instr 1
  aPlate Metal 330, 0.4
  aSecond Metal 441, 0.35
  aGate linseg 0, 0.07, 0, 0.001, 1, 1, 1
  aNoise Noise
  aSlide butterbp aNoise, 1800, 700
  Finish aPlate * 0.6 + aSecond * aGate * 0.5 + aSlide * 0.5 * Strike(0.01, 0.08), 0.001, 0.08
endin
</CsInstruments>
<CsScore>
i 1 0 0.45
</CsScore>
</CsoundSynthesizer>
