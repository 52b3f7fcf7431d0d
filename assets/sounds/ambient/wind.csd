<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Wind along a hull, a loop.
<CsInstruments>
#include "loop.orc"
giLevel = 0.06188
giSeconds = 6
giLow Cloud 120, 700, 70, 0.7
giHigh Cloud 700, 2400, 60, 0.6

instr 1
  aLow Loop giLow
  aHigh Loop giHigh
  out (aLow * Swell(2, 0.45) + aHigh * Swell(3, 0.1) * 0.7) * giLevel
endin
</CsInstruments>
<CsScore>
i 1 0 6
</CsScore>
</CsoundSynthesizer>
