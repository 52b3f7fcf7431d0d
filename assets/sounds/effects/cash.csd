<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Cash: two tiny bells, the second a fourth up.
<CsInstruments>
#include "effect.orc"
giLevel = 0.06424

instr 1
  a1 poscil 1, 1975.5
  a1b poscil 0.4, 5926.6
  a2 poscil 1, 2637
  a2b poscil 0.4, 7911
  aOne = (a1 + a1b) * linseg:a(0, 0.002, 1, 0.055, 0.5, 0.008, 0, 1, 0)
  aTwo = (a2 + a2b) * linseg:a(0, 0.06, 0, 0.002, 1, 0.001, 1, 1, 1) * expseg:a(1, 0.06, 1, 0.26, 0.004, 1, 0.004)
  Finish aOne + aTwo, 0.001, 0.05
endin
</CsInstruments>
<CsScore>
i 1 0 0.32
</CsScore>
</CsoundSynthesizer>
