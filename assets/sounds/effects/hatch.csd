<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Something hatches: wet squeaks over a squelch.
<CsInstruments>
#include "effect.orc"
giLevel = 0.09932

instr 1
  kJump randh 1, 13, 0.71
  kFreq port 900 + 520 * kJump, 0.018
  aSqueak poscil 1, kFreq
  aGate = 0.5 + 0.5 * lfo:a(1, 13)
  aNoise Noise
  kWet port 700 + 500 * kJump, 0.03
  aWet butterbp aNoise, kWet, 180
  Finish (aSqueak * aGate * 0.7 + aWet * 2.2) * linseg:a(0, 0.03, 1, 0.35, 0.8, 0.16, 0), 0.004, 0.08
endin
</CsInstruments>
<CsScore>
i 1 0 0.55
</CsScore>
</CsoundSynthesizer>
