<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Health taken: two warm round notes, a fifth up.
<CsInstruments>
#include "effect.orc"
giLevel = 0.05869

instr 1
  a1 poscil 1, 523.25
  a1b poscil 0.25, 1046.5
  a2 poscil 1, 783.99
  a2b poscil 0.25, 1567.98
  aOne = (a1 + a1b) * linseg:a(0, 0.015, 1, 0.11, 0.5, 0.03, 0, 1, 0)
  aTwo = (a2 + a2b) * linseg:a(0, 0.12, 0, 0.015, 1, 0.24, 0)
  Finish aOne + aTwo, 0.005, 0.06
endin
</CsInstruments>
<CsScore>
i 1 0 0.4
</CsScore>
</CsoundSynthesizer>
