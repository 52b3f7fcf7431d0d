<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Taken back: two low pulses.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1412

instr 1
  aPulse vco2 0.5, 196, 2, 0.2
  aPulse butterlp aPulse, 1700
  aGate linseg 0, 0.003, 1, 0.045, 0.8, 0.01, 0, 0.03, 0, 0.003, 1, 0.05, 0.6, 0.02, 0, 1, 0
  Finish aPulse * aGate, 0.002, 0.02
endin
</CsInstruments>
<CsScore>
i 1 0 0.17
</CsScore>
</CsoundSynthesizer>
