<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; An electric grid goes down: the hum sinks and sputters out.
<CsInstruments>
#include "effect.orc"
giLevel = 0.6211

instr 1
  kFreq expseg 110, 0.4, 41, 0.1, 41
  aSaw vco2 0.6, kFreq, 0
  kCut expseg 3400, 0.42, 200, 0.1, 200
  aHum moogladder2 aSaw, kCut, 0.5
  kSput lfo 1, 17, 3
  aSput = port(kSput, 0.004)
  Finish aHum * (0.5 + 0.5 * aSput) * linseg:a(0, 0.004, 1, 0.2, 0.8, 0.24, 0), 0.003, 0.08
endin
</CsInstruments>
<CsScore>
i 1 0 0.45
</CsScore>
</CsoundSynthesizer>
