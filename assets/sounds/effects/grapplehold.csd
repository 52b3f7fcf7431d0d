<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; The hook bites: a clank with a short strain of the rope.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1704

instr 1
  aClank Metal 610, 0.25
  aRope vco2 0.5, 82, 0
  aRope butterbp aRope, 900, 500
  aNoise Noise
  aBite butterbp aNoise, 2100, 900
  Finish aClank * 0.5 + aBite * 0.8 * Strike(0.0005, 0.04) + aRope * 1.2 * linseg:a(0, 0.04, 0, 0.02, 1, 0.13, 0), 0.0005, 0.04
endin
</CsInstruments>
<CsScore>
i 1 0 0.22
</CsScore>
</CsoundSynthesizer>
