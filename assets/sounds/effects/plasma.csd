<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; The plasma gun: a bright drop of pitch with a wobble in it.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1277

instr 1
  kFreq expseg 1500, 0.16, 300, 0.1, 260
  aMod poscil kFreq * 0.9, kFreq * 0.5
  aTone poscil 1, kFreq + aMod
  aTone2 poscil 0.5, kFreq * 2.01
  Finish (aTone + aTone2) * Strike(0.003, 0.24), 0.001, 0.04
endin
</CsInstruments>
<CsScore>
i 1 0 0.24
</CsScore>
</CsoundSynthesizer>
