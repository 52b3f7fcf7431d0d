<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A pump at work, a loop: a thud and a hiss, four times.
<CsInstruments>
#include "loop.orc"
giLevel = 0.043
giSeconds = 3.2
giDrone ftgen 0, 0, -141120, 9, 288, 1, 0, 576, 0.8, 0, 864, 0.4, 0, 1440, 0.2, 0
giSteam Cloud 1800, 6000, 110, 0.5
giThud ftgen 0, 0, -141120, 27, 0, 0, 400, 1, 9000, 0.08, 20000, 0, 35280, 0, 35680, 0.8, 44280, 0.08, 55280, 0, 70560, 0, 70960, 1, 79560, 0.08, 90560, 0, 105840, 0, 106240, 0.8, 114840, 0.08, 125840, 0, 141120, 0
giHiss ftgen 0, 0, -141120, 27, 0, 0, 17000, 0, 20000, 1, 33000, 0, 52000, 0, 55000, 0.8, 69000, 0, 88000, 0, 91000, 1, 104000, 0, 123000, 0, 126000, 0.8, 139000, 0, 141120, 0

instr 1
  aDrone poscil 1, 1 / giSeconds, giDrone
  aSteam Loop giSteam
  aThud poscil 1, 1 / giSeconds, giThud
  aHiss poscil 1, 1 / giSeconds, giHiss
  aKnock poscil 1, 304 / giSeconds
  out (aDrone * 0.25 + aKnock * aThud * 0.9 + aSteam * aHiss * 0.5) * giLevel
endin
</CsInstruments>
<CsScore>
i 1 0 3.2
</CsScore>
</CsoundSynthesizer>
