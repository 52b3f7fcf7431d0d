<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A blow at close quarters: a swish that ends in a dull hit.
<CsInstruments>
#include "effect.orc"
giLevel = 0.181

instr 1
  aNoise Noise
  kCentre expseg 700, 0.09, 3600, 0.1, 1200, 0.1, 1200
  aSwish butterbp aNoise, kCentre, kCentre * 0.35
  aSwish = aSwish * linseg:a(0, 0.08, 1, 0.04, 0.1, 0.1, 0)
  aHit Glide 150, 68, 0.08
  aGate linseg 0, 0.095, 0, 0.002, 1, 0.12, 0, 1, 0
  Finish aSwish * 1.8 + aHit * aGate * 1.2, 0.002, 0.04
endin
</CsInstruments>
<CsScore>
i 1 0 0.24
</CsScore>
</CsoundSynthesizer>
