<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Water against metal, a loop: low slops under small gurgles.
<CsInstruments>
#include "loop.orc"
giLevel = 0.05157
giSeconds = 5
giSlop Cloud 160, 900, 70, 0.8
giGurgle ftgen 0, 0, -220500, -27, 0, 430, 9000, 700, 21000, 390, 36000, 820, 52000, 510, 71000, 940, 83000, 450, 99000, 610, 121000, 360, 140000, 760, 163000, 480, 181000, 870, 203000, 520, 220500, 430
giDrops ftgen 0, 0, -220500, 27, 0, 0, 15000, 0, 18000, 1, 26000, 0, 60000, 0, 64000, 0.8, 70000, 0, 98000, 0, 103000, 1, 111000, 0, 150000, 0, 153000, 0.7, 160000, 0, 180000, 0, 184000, 0.9, 193000, 0, 220500, 0

instr 1
  aSlop Loop giSlop
  aFreq poscil 1, 1 / giSeconds, giGurgle
  aDrops poscil 1, 1 / giSeconds, giDrops
  aBubble poscil 1, aFreq * (1 + 0.3 * aDrops)
  out (aSlop * Swell(4, 0.3) + aBubble * aDrops * 0.7) * giLevel
endin
</CsInstruments>
<CsScore>
i 1 0 5
</CsScore>
</CsoundSynthesizer>
