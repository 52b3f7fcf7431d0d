<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; An engineer repairs: three taps on metal under a welding arc.
<CsInstruments>
#include "effect.orc"
giLevel = 0.2245

instr 1
  aTap1 Metal 880, 0.11
  aTap2 Metal 932, 0.11
  aTap3 Metal 988, 0.16
  aTwo delay aTap2, 0.15
  aThree delay aTap3, 0.3
  aNoise Noise
  kArc randh 1, 110, 0.9
  aArc butterbp aNoise, 5200, 2200
  aArc = aArc * port(abs(kArc), 0.001) * linseg:a(0, 0.05, 1, 0.3, 0.8, 0.15, 0)
  Finish (aTap1 + aTwo + aThree) * 0.5 + aArc * 0.45, 0.001, 0.06
endin
</CsInstruments>
<CsScore>
i 1 0 0.55
</CsScore>
</CsoundSynthesizer>
