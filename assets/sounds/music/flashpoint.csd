<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Fight: E with a flat second, 150 beats a minute. A galloping riff over broken drums, a second
; part that climbs, a bridge at half speed, and both again.
<CsInstruments>
#include "music.orc"
giTempo = 150
giBars = 60
giLevel = 0.1338
giPump = 0.3
giReverb = 0.7

instr Song
  iClimb[] fillarray 40, 43, 45, 46, 40, 43, 47, 48
  iBar = 0
  while iBar < giBars do
    ; 0 the riff, 1 the climb, 2 the bridge
    iPart = iBar < 16 ? 0 : (iBar < 32 ? 1 : (iBar < 40 ? 2 : (iBar < 48 ? 0 : 1)))
    iLast = iBar == giBars - 1 ? 1 : 0
    iFill = iBar % 8 == 7 ? 1 : 0

    if iPart == 0 then
      iRiff[] fillarray 28, 0, 28, 28, 40, 0, 28, 28, 29, 0, 29, 28, 0, 28, 31, 29
      if iBar % 4 == 3 then
        iRiff fillarray 28, 0, 28, 28, 40, 0, 28, 28, 34, 0, 33, 0, 31, 0, 29, 29
      endif
      Line "Grind", iRiff, iBar, 0.85, iBar < 4 ? 0.7 : 0.85, 0
    elseif iPart == 1 then
      iR = iClimb[iBar % 8]
      iRun[] fillarray iR, iR, 0, iR, iR, 0, iR, iR + 12, 0, iR, iR, 0, iR + 7, 0, iR + 12, iR
      if iLast == 0 then
        Line "Grind", iRun, iBar, 0.8, 0.8, -12
      endif
      iFifth[] fillarray iR + 12, iR + 19, iR + 24
      if iLast == 0 then
        Chord "Pad", iFifth, iBar, 1, 0.5
      endif
      iNote = 0
      while iNote < 3 do
        schedule "Stab", At(iBar, 0), 0.16, 0.75, iFifth[iNote] + 12, 0.2 + iNote * 0.3
        schedule "Stab", At(iBar, 3), 0.14, 0.6, iFifth[iNote] + 12, 0.8 - iNote * 0.3
        if iBar % 2 == 1 && iLast == 0 then
          schedule "Stab", At(iBar, 10), 0.16, 0.7, iFifth[iNote] + 13, 0.5
        endif
        iNote += 1
      od
    else
      iLow = iBar % 4 == 3 ? 29 : (iBar % 4 == 2 ? 31 : 28)
      schedule "Grind", At(iBar, 0), At(0, 12), 0.6, iLow
      schedule "Drone", At(iBar, 0), At(1.2, 0), 0.6, iLow + 12
      iSlow[] fillarray iLow + 36, 0, iLow + 39, 0, iLow + 43, 0, iLow + 42, 0
      Line "Pluck", iSlow, iBar, 1.4, 0.35, 0
    endif

    if iPart == 2 then
      Hits "Kick", "X.........x.....", iBar
      Hits "Snare", "........X.......", iBar
      Hits "Hat", "x.o.x.o.x.o.x.o.", iBar
    elseif iLast == 1 then
      Hits "Kick", "X..X....X.......", iBar
      Hits "Snare", "....X.......X...", iBar
    else
      Hits "Kick", iBar % 2 == 0 ? "X.....x...x....." : "X..x......x..x..", iBar
      Hits "Snare", iFill == 1 ? "....X..o.o..XxXX" : "....X..o.o..X..o", iBar
      Hits "Hat", iBar < 4 ? "x.x.x.x.x.x.x.x." : "xoxoXoxoxoxoXoxo", iBar
      if iBar % 4 == 0 then
        Hits "OpenHat", "..............X.", iBar
      endif
      if iFill == 1 then
        Hits "Tom", "........x.x.x...", iBar
      endif
    endif

    if (iBar >= 8 && iBar < 16) || (iBar >= 40 && iBar < 48) then
      iHook[] fillarray 64, 0, 0, 65, 0, 0, 64, 0, 0, 0, 62, 0, 59, 0, 60, 0
      if iBar % 2 == 1 then
        iHook fillarray 64, 0, 0, 65, 0, 0, 67, 0, 0, 0, 70, 0, 69, 0, 65, 0
      endif
      Line "Lead", iHook, iBar, 1.8, 0.6, iBar >= 44 ? 12 : 0
    endif
    if (iBar >= 24 && iBar < 32) || (iBar >= 52 && iLast == 0) then
      iR = iClimb[iBar % 8]
      iRace[] fillarray iR + 36, iR + 31, iR + 24, iR + 31, iR + 36, iR + 31, iR + 24, iR + 31, iR + 36, iR + 31, iR + 24, iR + 31, iR + 37, iR + 36, iR + 31, iR + 29
      Line "Pluck", iRace, iBar, 0.7, 0.6, 0
    endif
    iBar += 1
  od
  schedule "Riser", At(36, 0), At(4, 0), 0.8
  schedule "Riser", At(14, 0), At(2, 0), 0.6
  Hits "Snare", "o.o.o.o.x.x.xxXX", 39
endin

schedule "Song", 0, 0.1
schedule "Master", 0, At(giBars, 0)
</CsInstruments>
<CsScore>
f 0 3600
</CsScore>
</CsoundSynthesizer>
