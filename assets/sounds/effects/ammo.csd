<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Ammunition taken: a magazine clicks home on two short square notes.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1055

instr 1
  aSq1 vco2 0.5, 392, 10
  aSq2 vco2 0.5, 587, 10
  aGate1 linseg 0, 0.003, 1, 0.05, 0.6, 0.01, 0, 1, 0
  aGate2 linseg 0, 0.085, 0, 0.003, 1, 0.09, 0.3, 0.05, 0
  aMix butterlp aSq1 * aGate1 + aSq2 * aGate2, 2600
  aNoise Noise
  aSnap butterbp aNoise, 2600, 1200
  Finish aMix + aSnap * Strike(0.0005, 0.03), 0.001, 0.03
endin
</CsInstruments>
<CsScore>
i 1 0 0.24
</CsScore>
</CsoundSynthesizer>
