<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Confirmed: a pure tone that lifts.
<CsInstruments>
#include "effect.orc"
giLevel = 0.05327

instr 1
  kFreq expseg 660, 0.1, 880, 0.3, 880
  aSine poscil 1, kFreq
  Finish aSine * linseg:a(0, 0.02, 1, 0.14, 0.8, 0.2, 0), 0.006, 0.08
endin
</CsInstruments>
<CsScore>
i 1 0 0.36
</CsScore>
</CsoundSynthesizer>
