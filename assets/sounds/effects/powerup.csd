<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A power-up: a chord that climbs three steps and blooms.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1669

instr 1
  kRoot linseg 220, 0.14, 220, 0.001, 277.18, 0.14, 277.18, 0.001, 329.63, 0.7, 329.63
  a1 vco2 0.4, kRoot, 0
  a2 vco2 0.4, kRoot * 1.498, 0
  a3 vco2 0.4, kRoot * 2.006, 0
  kCut expseg 600, 0.45, 5200, 0.5, 700
  aChord moogladder2 a1 + a2 + a3, kCut, 0.25
  aSparkle poscil 0.12, kRoot * 8
  Finish (aChord + aSparkle * linseg:a(0, 0.3, 0, 0.1, 1, 0.4, 0)) * linseg:a(0, 0.02, 1, 0.5, 0.9, 0.43, 0), 0.005, 0.2
endin
</CsInstruments>
<CsScore>
i 1 0 0.95
</CsScore>
</CsoundSynthesizer>
