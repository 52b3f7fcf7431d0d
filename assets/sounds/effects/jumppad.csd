<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A jump pad: a spring that throws upwards.
<CsInstruments>
#include "effect.orc"
giLevel = 0.05492

instr 1
  kFreq expseg 140, 0.2, 690, 0.3, 760
  kVib expseg 0.22, 0.45, 0.005
  aFreq = a(kFreq) * (1 + a(kVib) * lfo:a(1, 26))
  aSpring poscil 1, aFreq
  aSpring2 poscil 0.4, aFreq * 2.03
  aThump Glide 120, 60, 0.06
  Finish (aSpring + aSpring2) * linseg:a(0, 0.01, 1, 0.2, 0.6, 0.24, 0) + aThump * 0.8 * Strike(0.002, 0.12), 0.002, 0.08
endin
</CsInstruments>
<CsScore>
i 1 0 0.45
</CsScore>
</CsoundSynthesizer>
