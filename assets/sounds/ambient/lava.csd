<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Lava, a loop: a deep seethe that bubbles.
<CsInstruments>
#include "loop.orc"
giLevel = 0.02913
giSeconds = 5
giSeethe Cloud 45, 420, 80, 0.9
giPops ftgen 0, 0, -220500, 27, 0, 0, 22000, 0, 22600, 1, 31000, 0, 58000, 0, 58500, 0.7, 65000, 0, 91000, 0, 91700, 1, 102000, 0, 118000, 0, 118400, 0.6, 124000, 0, 158000, 0, 158600, 0.9, 168000, 0, 190000, 0, 190500, 0.8, 199000, 0, 220500, 0

instr 1
  aSeethe Loop giSeethe
  aPops poscil 1, 1 / giSeconds, giPops
  aPop poscil 1, 70 + 190 * aPops
  out (aSeethe * Swell(3, 0.5) + aPop * aPops * 1.3) * giLevel
endin
</CsInstruments>
<CsScore>
i 1 0 5
</CsScore>
</CsoundSynthesizer>
