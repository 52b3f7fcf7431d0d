<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A room of machines in the distance, a loop: mains hum that beats slowly.
<CsInstruments>
#include "loop.orc"
giLevel = 0.04963
giSeconds = 4
giHum ftgen 0, 0, -176400, 9, 400, 0.7, 20, 401, 0.5, 130, 800, 1, 250, 803, 0.8, 310, 1200, 0.5, 80, 1604, 0.35, 170, 2400, 0.2, 220, 3205, 0.1, 10
giAir Cloud 300, 2500, 90, 0.8

instr 1
  aHum Loop giHum
  aAir Loop giAir
  out (aHum + aAir * 0.06) * giLevel
endin
</CsInstruments>
<CsScore>
i 1 0 4
</CsScore>
</CsoundSynthesizer>
