<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; The hammer falls on nothing: one small dry click.
<CsInstruments>
#include "effect.orc"
giLevel = 0.4562

instr 1
  aNoise Noise
  aClick butterbp aNoise, 900, 450
  aTick poscil 0.5, 2450
  Finish aClick * 2 * Strike(0.0005, 0.14) + aTick * Strike(0.0005, 0.06), 0.0005, 0.03
endin
</CsInstruments>
<CsScore>
i 1 0 0.11
</CsScore>
</CsoundSynthesizer>
