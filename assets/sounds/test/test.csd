<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; For trying the sound out: a chime of four notes.
<CsInstruments>
#include "effect.orc"
giLevel = 0.05858

instr 1
  a1 poscil 0.8, 523.25
  a2 poscil 0.8, 659.26
  a3 poscil 0.8, 783.99
  a4 poscil 0.8, 1046.5
  a1 = a1 * linseg:a(0, 0.01, 1, 0.5, 0)
  a2 = a2 * linseg:a(0, 0.2, 0, 0.01, 1, 0.5, 0)
  a3 = a3 * linseg:a(0, 0.4, 0, 0.01, 1, 0.5, 0)
  a4 = a4 * linseg:a(0, 0.6, 0, 0.01, 1, 0.68, 0)
  Finish a1 + a2 + a3 + a4, 0.005, 0.1
endin
</CsInstruments>
<CsScore>
i 1 0 1.3
</CsScore>
</CsoundSynthesizer>
