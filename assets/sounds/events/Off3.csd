<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; The game is paused: two soft notes down.
<CsInstruments>
#include "effect.orc"
giLevel = 0.06942

instr 1
  a1 poscil 0.9, 659.26
  a2 poscil 0.9, 440
  a3 vco2 0.12, 220, 12
  aOne = a1 * linseg:a(0, 0.01, 1, 0.1, 0.5, 0.03, 0, 1, 0)
  aTwo = (a2 + a3) * linseg:a(0, 0.11, 0, 0.012, 1, 0.21, 0)
  Finish aOne + aTwo, 0.004, 0.07
endin
</CsInstruments>
<CsScore>
i 1 0 0.34
</CsScore>
</CsoundSynthesizer>
