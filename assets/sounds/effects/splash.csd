<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Into the water: a slap of spray and a few bubbles that rise.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1552

instr 1
  aNoise Noise
  kCut expseg 5200, 0.5, 700, 0.2, 500
  aSpray butterlp aNoise, kCut
  aSpray butterhp aSpray, 300
  kWob randh 1, 32, 0.37
  kBubble port 480 + 330 * kWob, 0.008
  aBubble poscil 1, kBubble
  aBubble = aBubble * linseg:a(0, 0.12, 0, 0.08, 0.7, 0.35, 0.2, 0.1, 0)
  Finish aSpray * 1.2 * Strike(0.006, 0.5) + aBubble * 0.5, 0.003, 0.1
endin
</CsInstruments>
<CsScore>
i 1 0 0.65
</CsScore>
</CsoundSynthesizer>
