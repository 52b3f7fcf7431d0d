<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A window closes: a smooth breath downwards.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1787

instr 1
  aNoise Noise
  kCentre expseg 2600, 0.28, 420, 0.1, 420
  aBreath butterbp aNoise, kCentre, kCentre * 0.3
  aTone poscil 0.25, kCentre * 0.25
  Finish (aBreath * 1.6 + aTone) * linseg:a(0, 0.07, 1, 0.2, 0), 0.005, 0.06
endin
</CsInstruments>
<CsScore>
i 1 0 0.3
</CsScore>
</CsoundSynthesizer>
