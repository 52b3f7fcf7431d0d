<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A rocket leaves its tube: a thump, then a rush of air that rises and thins out.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1297

instr 1
  aNoise Noise
  kCentre expseg 350, 0.15, 1800, 0.45, 900
  aRush butterbp aNoise, kCentre, kCentre * 0.6
  aRush = aRush * linseg:a(0, 0.07, 1, 0.18, 0.6, 0.35, 0)
  aThump Glide 190, 50, 0.12
  aThump = aThump * Strike(0.002, 0.25)
  Finish tanh(aRush * 2.2 + aThump * 1.3), 0.001, 0.1
endin
</CsInstruments>
<CsScore>
i 1 0 0.6
</CsScore>
</CsoundSynthesizer>
