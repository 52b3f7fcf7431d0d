<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; The lightning gun while it fires, a loop: a torn mains buzz that spits.
<CsInstruments>
#include "loop.orc"
giLevel = 0.1016
giSeconds = 1
giBuzz ftgen 0, 0, -44100, 9, 60, 1, 20, 120, 0.8, 200, 180, 0.9, 70, 240, 0.6, 310, 300, 0.7, 140, 420, 0.6, 250, 540, 0.5, 10, 660, 0.5, 95, 840, 0.4, 185, 1020, 0.4, 275
giSpit Cloud 1500, 7500, 160, 0.4
giJitter ftgen 0, 0, -44100, 27, 0, 0, 1300, 1, 2600, 0.25, 5200, 0.9, 6900, 0.2, 9400, 0.8, 11100, 1, 13000, 0.3, 16300, 0.75, 18100, 0.2, 20900, 0.95, 24000, 0.35, 25500, 1, 29800, 0.6, 31000, 0.15, 33700, 0.85, 36200, 0.3, 38800, 0.9, 41900, 0.5, 44100, 0

instr 1
  aBuzz poscil 1, 1, giBuzz
  aJitter poscil 1, 1, giJitter
  aSpit Loop giSpit
  aSig = tanh(aBuzz * 5) * 0.6 * (0.35 + 0.65 * aJitter) + aSpit * aJitter * aJitter * 0.6
  out aSig * aJitter * giLevel
endin
</CsInstruments>
<CsScore>
i 1 0 1
</CsScore>
</CsoundSynthesizer>
