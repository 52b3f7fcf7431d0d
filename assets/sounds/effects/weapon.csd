<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A weapon taken: two heavy chunks and a rising power chord.
<CsInstruments>
#include "effect.orc"
giLevel = 0.2627

instr 1
  aNoise Noise
  aChunk butterbp aNoise, 620, 420
  aGate linseg 0, 0.001, 1, 0.04, 0, 0.06, 0, 0.001, 1, 0.06, 0, 1, 0
  kFreq linseg 98, 0.12, 98, 0.03, 147, 0.5, 147
  a1 vco2 0.5, kFreq, 0
  a2 vco2 0.5, kFreq * 1.5, 0
  kCut expseg 500, 0.2, 2600, 0.4, 500
  aChord moogladder2 a1 + a2, kCut, 0.3
  Finish aChunk * aGate * 1.4 + aChord * linseg:a(0, 0.02, 0.8, 0.3, 0.6, 0.22, 0), 0.002, 0.08
endin
</CsInstruments>
<CsScore>
i 1 0 0.55
</CsScore>
</CsoundSynthesizer>
