<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; The plasma pistol: a pip that springs upwards.
<CsInstruments>
#include "effect.orc"
giLevel = 0.08081

instr 1
  kFreq expseg 480, 0.1, 1750, 0.07, 1900
  aSq vco2 0.5, kFreq, 2, 0.3
  aSq butterlp aSq, 4200
  aPop poscil 0.5, kFreq * 0.5
  Finish (aSq + aPop) * linseg:a(0, 0.004, 1, 0.07, 0.7, 0.09, 0), 0.001, 0.03
endin
</CsInstruments>
<CsScore>
i 1 0 0.17
</CsScore>
</CsoundSynthesizer>
