<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A slider is let go or a key bound: a square blip.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1134

instr 1
  aSq vco2 0.5, 740, 10
  aSq butterlp aSq, 4200
  Finish aSq * linseg:a(0, 0.002, 1, 0.05, 0.7, 0.035, 0), 0.0015, 0.02
endin
</CsInstruments>
<CsScore>
i 1 0 0.09
</CsScore>
</CsoundSynthesizer>
