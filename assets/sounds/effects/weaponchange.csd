<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Another weapon slides in: two mechanical clicks, the second higher.
<CsInstruments>
#include "effect.orc"
giLevel = 0.2932

instr 1
  aNoise Noise
  aOne butterbp aNoise, 1500, 700
  aTwo butterbp aNoise, 3300, 1200
  aFirst = aOne * Strike(0.0008, 0.12)
  aGate linseg 0, 0.095, 0, 0.001, 1, 0.03, 0.35, 0.09, 0
  aRing poscil 0.25, 1740
  Finish aFirst * 2 + (aTwo * 1.5 + aRing) * aGate, 0.0005, 0.04
endin
</CsInstruments>
<CsScore>
i 1 0 0.24
</CsScore>
</CsoundSynthesizer>
