<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A choice or a key: a tick.
<CsInstruments>
#include "effect.orc"
giLevel = 0.2182

instr 1
  aTick poscil 1, 2750
  aBody poscil 0.8, 980
  Finish aTick * Strike(0.0008, 0.05) + aBody * Strike(0.0008, 0.12), 0.0006, 0.025
endin
</CsInstruments>
<CsScore>
i 1 0 0.07
</CsScore>
</CsoundSynthesizer>
