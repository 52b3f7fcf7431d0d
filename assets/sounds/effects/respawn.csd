<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Something comes back: a soft shimmer that gathers upwards.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1137

instr 1
  kStep lfo 1, 19, 4
  kFreq expseg 620, 0.5, 1860, 0.2, 1860
  a1 poscil 0.5, kFreq * (1 + 0.5 * kStep)
  a2 poscil 0.4, kFreq * 1.5
  aAir Noise
  aAir butterbp aAir, kFreq * 3, 900
  aTrem = 0.7 + 0.3 * lfo:a(1, 19)
  Finish (a1 + a2) * aTrem * linseg:a(0, 0.3, 0.8, 0.12, 1, 0.18, 0) + aAir * 0.3 * linseg:a(0, 0.4, 1, 0.2, 0), 0.01, 0.1
endin
</CsInstruments>
<CsScore>
i 1 0 0.6
</CsScore>
</CsoundSynthesizer>
