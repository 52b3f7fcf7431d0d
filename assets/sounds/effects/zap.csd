<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; An electric field bites: a hard buzz in bursts.
<CsInstruments>
#include "effect.orc"
giLevel = 0.2194

instr 1
  aNoise Noise
  aSaw vco2 0.7, 116, 0
  aBuzz = tanh((aSaw + aNoise * 0.5) * 4)
  aBuzz butterbp aBuzz, 2400, 2600
  kBurst randh 1, 75, 0.61
  aBurst = port(abs(kBurst), 0.0015)
  Finish aBuzz * (0.3 + aBurst) * linseg:a(0, 0.003, 1, 0.17, 0.8, 0.1, 0), 0.001, 0.05
endin
</CsInstruments>
<CsScore>
i 1 0 0.28
</CsScore>
</CsoundSynthesizer>
