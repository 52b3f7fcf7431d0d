<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; A big switch: a relay snaps and the contact thuds home.
<CsInstruments>
#include "effect.orc"
giLevel = 0.1604

instr 1
  aNoise Noise
  aSnap butterbp aNoise, 2900, 1100
  aThud Glide 170, 82, 0.06
  aGate linseg 0, 0.07, 0, 0.002, 1, 0.15, 0, 1, 0
  aContact Metal 720, 0.1
  aHum poscil 0.25, 100
  Finish aSnap * 1.3 * Strike(0.0005, 0.045) + (aThud * 1.3 + aContact * 0.6 + aHum) * aGate, 0.0005, 0.06
endin
</CsInstruments>
<CsScore>
i 1 0 0.3
</CsScore>
</CsoundSynthesizer>
