<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A grenade or a chunk hits the floor: a dull knock.
<CsInstruments>
#include "effect.orc"
giLevel = 0.2202

instr 1
  aKnock Glide 210, 120, 0.04
  aNoise Noise
  aThud butterlp aNoise, 420
  Finish aKnock * Strike(0.001, 0.13) + aThud * 1.4 * Strike(0.001, 0.05), 0.0008, 0.03
endin
</CsInstruments>
<CsScore>
i 1 0 0.16
</CsScore>
</CsoundSynthesizer>
