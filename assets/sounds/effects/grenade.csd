<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A grenade launcher: a hollow pop, as of a cork drawn from a pipe.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1482

instr 1
  aPipe Glide 310, 118, 0.07
  aPipe2 Glide 640, 250, 0.07
  aNoise Noise
  aPuff butterbp aNoise, 700, 500
  aMix = aPipe * Strike(0.002, 0.2) + aPipe2 * 0.35 * Strike(0.002, 0.12)
  Finish aMix + aPuff * Strike(0.001, 0.07) * 0.9, 0.001, 0.06
endin
</CsInstruments>
<CsScore>
i 1 0 0.28
</CsScore>
</CsoundSynthesizer>
