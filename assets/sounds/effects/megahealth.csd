<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Mega health: the warm notes of health as a full rising chord.
<CsInstruments>
#include "effect.orc"
giLevel = 0.04298

instr 1
  a1 poscil 0.9, 392
  a2 poscil 0.9, 523.25
  a3 poscil 0.9, 659.26
  a4 poscil 0.7, 1046.5
  a1 = a1 * linseg:a(0, 0.02, 1, 0.86, 0)
  a2 = a2 * linseg:a(0, 0.1, 0, 0.02, 1, 0.76, 0)
  a3 = a3 * linseg:a(0, 0.2, 0, 0.02, 1, 0.66, 0)
  a4 = a4 * linseg:a(0, 0.3, 0, 0.02, 1, 0.56, 0)
  aTrem = 0.85 + 0.15 * lfo:a(1, 6.5)
  Finish (a1 + a2 + a3 + a4) * aTrem, 0.005, 0.15
endin
</CsInstruments>
<CsScore>
i 1 0 0.9
</CsScore>
</CsoundSynthesizer>
