<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; The grapple shoots out: a rising zip with the rattle of a winding drum.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1813

instr 1
  aFreq expseg 520, 0.22, 2300, 0.1, 2300
  aZip vco2 0.6, k(aFreq), 0
  aZip butterbp aZip, k(aFreq) * 1.5, 900
  kRattle lfo 1, 55, 3
  aNoise Noise
  aDrum butterbp aNoise, 3400, 1600
  aMix = aZip * 0.9 + aDrum * kRattle * 0.5
  Finish aMix * linseg:a(0, 0.01, 1, 0.2, 0.7, 0.05, 0), 0.002, 0.04
endin
</CsInstruments>
<CsScore>
i 1 0 0.26
</CsScore>
</CsoundSynthesizer>
