<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Drive: A minor, four on the floor, 124 beats a minute. Eight bars of engine, a first theme of
; arpeggios, a breath, and a second theme with the lead.
<CsInstruments>
#include "music.orc"
giTempo = 124
giBars = 48
giLevel = 0.1083
giPump = 0.55

instr Song
  iRoots[] fillarray 45, 41, 36, 43, 45, 41, 38, 40
  iThird[] fillarray 3, 4, 4, 4, 3, 4, 3, 4
  iBar = 0
  while iBar < giBars do
    iRoot = iRoots[iBar % 8]
    iMid = iRoot + iThird[iBar % 8]
    iOff[] fillarray 0, iRoot, iRoot, iRoot, 0, iRoot, iRoot, iRoot + 12, 0, iRoot, iRoot, iRoot, 0, iRoot, iRoot + 12, iRoot + 7
    iUp[] fillarray iRoot, iMid, iRoot + 7, iRoot + 12, iMid + 12, iRoot + 7, iMid, iRoot + 12, iRoot + 7, iMid + 12, iRoot + 12, iRoot + 7, iMid, iRoot + 7, iRoot + 12, iMid + 12
    iTriad[] fillarray iRoot + 12, iMid + 12, iRoot + 19, iRoot + 24
    iBreak = (iBar >= 24 && iBar < 32) ? 1 : 0
    iLast = iBar == giBars - 1 ? 1 : 0

    if iBreak == 0 then
      Hits "Kick", iLast == 1 ? "X...X...X......." : "X...X...X...X...", iBar
      if iBar >= 4 then
        Hits "OpenHat", "..x...x...x...x.", iBar
      endif
      if iBar >= 8 then
        Hits "Clap", "....x.......x...", iBar
        Hits "Hat", iBar % 2 == 0 ? "xoxoxoxoxoxoxoxo" : "xoxoxoxoxoxxxoxX", iBar
      endif
      Line "Bass", iOff, iBar, 0.9, iLast == 1 ? 0.6 : 0.85, 0
    else
      Hits "Hat", "o...o...o...o...", iBar
    endif

    if iBar >= 2 && iLast == 0 then
      iOpen = iBreak == 1 ? 0.5 : (iBar < 8 ? 0.3 + iBar * 0.03 : 0.62)
      Line "Pluck", iUp, iBar, 0.8, iOpen, 24
    endif
    if iBar >= 8 && iLast == 0 then
      Chord "Pad", iTriad, iBar, 1, iBreak == 1 ? 1 : 0.5
    endif
    if iBar >= 32 && iBar % 2 == 1 && iLast == 0 then
      iStabs[] fillarray iRoot + 24, iMid + 24, iRoot + 31
      iNote = 0
      while iNote < 3 do
        schedule "Stab", At(iBar, 6), 0.2, 0.6, iStabs[iNote], 0.2 + iNote * 0.3
        schedule "Stab", At(iBar, 12), 0.2, 0.5, iStabs[iNote], 0.8 - iNote * 0.3
        iNote += 1
      od
    endif
    iBar += 1
  od

  ; The second theme, eight bars, twice.
  iTune[] fillarray 76, 0, 0, 74, 72, 0, 69, 0,  72, 0, 0, 77, 76, 0, 72, 0,  79, 0, 0, 76, 74, 0, 72, 0,  74, 0, 0, 71, 74, 0, 79, 0,  81, 0, 0, 79, 76, 0, 72, 0,  77, 0, 0, 76, 74, 0, 72, 0,  74, 0, 77, 0, 81, 0, 77, 0,  76, 0, 0, 80, 83, 0, 0, 0
  iBar = 0
  while iBar < 16 do
    iHalf[] init 8
    iAt = 0
    while iAt < 8 do
      iHalf[iAt] = iTune[(iBar % 8) * 8 + iAt]
      iAt += 1
    od
    if iBar < 15 then
      Line "Lead", iHalf, 32 + iBar, 1.6, iBar < 8 ? 0.5 : 0.65, 0
    endif
    iBar += 1
  od
  schedule "Riser", At(28, 0), At(4, 0), 0.7
  schedule "Riser", At(6, 0), At(2, 0), 0.4
  Hits "Snare", "x...x...x.x.xxxx", 31
endin

schedule "Song", 0, 0.1
schedule "Master", 0, At(giBars, 0)
</CsInstruments>
<CsScore>
f 0 3600
</CsScore>
</CsoundSynthesizer>
