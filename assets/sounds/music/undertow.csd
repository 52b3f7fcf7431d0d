<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Tense: C minor with a tritone underneath, 96 beats a minute. A clock over drones, a pulse that
; will not settle, chords that close in by half steps, and the clock again.
<CsInstruments>
#include "music.orc"
giTempo = 96
giBars = 38
giLevel = 0.1875
giPump = 0.25
giReverb = 0.9

instr Song
  iBass[] fillarray 36, 36, 39, 38, 36, 36, 42, 41
  iBar = 0
  while iBar < giBars do
    ; 0 the clock, 1 the pulse, 2 the chords
    iPart = iBar < 8 ? 0 : (iBar < 18 ? 1 : (iBar < 26 ? 2 : (iBar < 36 ? 1 : 0)))
    iLast = iBar == giBars - 1 ? 1 : 0
    iR = iBass[iBar % 8]

    if iBar % 2 == 0 then
      schedule "Drone", At(iBar, 0), At(iBar == giBars - 2 ? 1.8 : 2.2, 0), 0.7, iR - 12 + 12 * (iPart == 2 ? 1 : 0)
    endif
    Hits "Tick", iLast == 1 ? "x...o...x......." : (iBar % 4 == 3 ? "x...o...x...o.oo" : "x...o...x...o..."), iBar

    if iPart == 1 then
      iPulse[] fillarray iR, iR, 0, iR, 0, iR, iR, 0, iR, iR, 0, iR, 0, iR + 6, 0, iR + 5
      if iBar % 4 == 2 then
        iPulse fillarray iR, iR, 0, iR, 0, iR, iR, 0, iR, 0, iR + 1, 0, iR + 6, 0, iR + 1, 0
      endif
      Line "Grind", iPulse, iBar, 0.6, iBar < 26 ? 0.42 : 0.55, 0
      Hits "Kick", iBar % 2 == 0 ? "x..o....x......." : "x..o......x.....", iBar
      if iBar >= 12 then
        Hits "Hat", "..o...o...o...oo", iBar
      endif
      if iBar >= 26 then
        Hits "Tom", iBar % 2 == 0 ? "......x....x..o." : "...x..x.......xx", iBar
        Hits "Clap", "............o...", iBar
      endif
      iNag[] fillarray 0, 0, 72, 0, 0, 75, 0, 0, 74, 0, 0, 0, 78, 0, 77, 0
      if iBar % 2 == 1 then
        iNag fillarray 0, 0, 72, 0, 0, 75, 0, 0, 74, 0, 0, 0, 71, 0, 0, 0
      endif
      Line "Pluck", iNag, iBar, 1.2, iBar < 12 ? 0.25 : 0.4, 0
    endif
    if iPart == 2 then
      iStep = floor((iBar - 18) / 2)
      iClose[] fillarray 48 + iStep, 51 + iStep, 54 + iStep, 60
      Chord "Pad", iClose, iBar, 1, 0.55 + 0.08 * iStep
      Hits "Kick", "X...............", iBar
      Hits "Tom", iBar % 2 == 0 ? "..........o..o.." : "..........o.x.xx", iBar
      schedule "Bell", At(iBar, 6), At(0, 4), 0.5, 84 + (iBar % 2) * 3
      schedule "Bell", At(iBar, 13), At(0, 2), 0.35, 90 - (iBar % 2) * 2
    endif
    if iPart == 0 && iLast == 0 then
      schedule "Bell", At(iBar, iBar % 2 == 0 ? 10 : 3), At(0, 4), 0.4, iBar % 4 == 1 ? 78 : (iBar % 4 == 3 ? 77 : 72)
      if iBar >= 2 then
        iThin[] fillarray 60, 63
        Chord "Pad", iThin, iBar, 1, 0.3
      endif
    endif
    if iBar >= 28 && iBar < 36 then
      iCry[] fillarray 72, 0, 0, 0, 71, 0, 75, 0
      if iBar % 2 == 1 then
        iCry fillarray 74, 0, 0, 0, 78, 0, 77, 0
      endif
      Line "Lead", iCry, iBar, 2, 0.42, 0
    endif
    iBar += 1
  od
  schedule "Riser", At(16, 0), At(2, 0), 0.5
  schedule "Riser", At(24, 0), At(2, 0), 0.9
endin

schedule "Song", 0, 0.1
schedule "Master", 0, At(giBars, 0)
</CsInstruments>
<CsScore>
f 0 3600
</CsScore>
</CsoundSynthesizer>
