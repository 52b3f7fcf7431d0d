<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A grenade or a chunk hits the floor: a small metal tink.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1625

instr 1
  aTink Metal 1180, 0.28
  aNoise Noise
  aTap butterbp aNoise, 4200, 1500
  Finish aTink * 0.5 + aTap * 0.5 * Strike(0.0005, 0.03), 0.0005, 0.03
endin
</CsInstruments>
<CsScore>
i 1 0 0.2
</CsScore>
</CsoundSynthesizer>
