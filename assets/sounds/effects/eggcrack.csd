<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; An egg cracks: brittle snaps that come faster.
<CsInstruments>
#include "effect.orc"
giLevel = 0.6193

instr 1
  aNoise Noise
  kRate linseg 12, 0.4, 46
  aPhase phasor kRate
  aSnap = (1 - aPhase) * (1 - aPhase) * (1 - aPhase)
  kTone randh 1, 30, 0.23
  aShell butterbp aNoise, 2100 + 900 * kTone, 1100
  Finish aShell * aSnap * linseg:a(0, 0.004, 1, 0.3, 0.8, 0.1, 0), 0.001, 0.05
endin
</CsInstruments>
<CsScore>
i 1 0 0.42
</CsScore>
</CsoundSynthesizer>
