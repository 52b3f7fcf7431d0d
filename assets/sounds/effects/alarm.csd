<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A kamikaze wakes up: a fast two-tone alarm.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1025

instr 1
  kTone lfo 0.5, 10, 3
  aSq vco2 0.5, 880 + kTone * 620, 10
  aSq butterlp aSq, 3800
  kPulse lfo 1, 20, 3
  aPulse = port(kPulse, 0.002)
  Finish aSq * (0.35 + 0.65 * aPulse) * linseg:a(0, 0.004, 1, 0.33, 1, 0.06, 0), 0.002, 0.05
endin
</CsInstruments>
<CsScore>
i 1 0 0.4
</CsScore>
</CsoundSynthesizer>
