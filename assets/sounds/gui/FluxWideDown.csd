<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A button is pressed: a wide tone that sinks a little.
<CsInstruments>
#include "effect.orc"
giLevel = 0.09787

instr 1
  kFreq expseg 620, 0.12, 310, 0.1, 300
  a1 poscil 0.7, kFreq
  a2 vco2 0.25, kFreq * 0.5, 4, 0.5
  Finish (a1 + a2) * linseg:a(0, 0.004, 1, 0.06, 0.6, 0.1, 0), 0.002, 0.03
endin
</CsInstruments>
<CsScore>
i 1 0 0.17
</CsScore>
</CsoundSynthesizer>
