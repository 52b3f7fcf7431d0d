<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; The shotgun: a broad boom with grit, and the pump behind it.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1298

instr 1
  aNoise Noise
  kCut expseg 5200, 0.18, 500, 0.3, 300
  aBoom butterlp aNoise, kCut
  aSub Glide 150, 52, 0.12
  aPump butterbp aNoise, 1900, 900
  aRack linseg 0, 0.26, 0, 0.002, 1, 0.04, 0.1, 0.06, 0.1, 0.002, 1, 0.05, 0, 1, 0
  Finish tanh(aBoom * 3.2 * Strike(0.001, 0.26) + aSub * 1.2 * Strike(0.002, 0.2)) + aPump * aRack * 0.28, 0.0008, 0.05
endin
</CsInstruments>
<CsScore>
i 1 0 0.5
</CsScore>
</CsoundSynthesizer>
