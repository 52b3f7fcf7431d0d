<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A shot under quad damage: a deep ring-modulated punch.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1525

instr 1
  aLow Glide 95, 42, 0.2
  aRing poscil 1, 187
  aLow2 vco2 0.7, 62, 0
  aRung = aLow2 * aRing
  aRung butterlp aRung, 2600
  Finish tanh(aLow * 0.9 * Strike(0.003, 0.3) + aRung * 3 * Strike(0.01, 0.4)), 0.002, 0.06
endin
</CsInstruments>
<CsScore>
i 1 0 0.38
</CsScore>
</CsoundSynthesizer>
