<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Calm: D major with a raised fourth now and then, 80 beats a minute. Pads alone, then plucked
; figures, then bells over a soft pulse, then all of it thinning out.
<CsInstruments>
#include "music.orc"
giTempo = 80
giBars = 32
giLevel = 0.1631
giPump = 0.2
giReverb = 0.88

; The chord of a bar: eight bars of the first part, eight of the second.
opcode Harmony, i[], ii
  iBar, iPart xin
  iFirst[] fillarray 50, 57, 61, 66,  50, 57, 61, 64,  47, 57, 62, 66,  47, 57, 61, 66,  43, 59, 62, 66,  43, 59, 61, 66,  45, 57, 62, 64,  45, 57, 61, 64
  iSecond[] fillarray 52, 59, 62, 66,  52, 59, 62, 67,  54, 57, 61, 64,  54, 57, 61, 66,  43, 59, 62, 69,  43, 59, 61, 66,  45, 59, 62, 64,  45, 57, 61, 67
  iOut[] init 4
  iAt = 0
  while iAt < 4 do
    iOut[iAt] = iPart == 0 ? iFirst[(iBar % 8) * 4 + iAt] : iSecond[(iBar % 8) * 4 + iAt]
    iAt += 1
  od
  xout iOut
endop

instr Song
  iTune[] fillarray 78, 0, 0, 0, 81, 0, 80, 0,  78, 0, 0, 0, 0, 0, 74, 0,  76, 0, 0, 0, 78, 0, 73, 0,  69, 0, 0, 0, 0, 0, 0, 0,  74, 0, 0, 78, 0, 0, 81, 0,  85, 0, 0, 0, 81, 0, 78, 0,  76, 0, 0, 0, 74, 0, 71, 0,  73, 0, 0, 0, 0, 0, 0, 0
  iBar = 0
  while iBar < giBars do
    iPart = (iBar >= 16 && iBar < 24) ? 1 : 0
    iLast = iBar == giBars - 1 ? 1 : 0
    iC[] Harmony iBar, iPart
    iHigh[] fillarray iC[1], iC[2], iC[3], iC[3] + 5
    if iLast == 1 then
      iHigh[3] = iC[1] + 12
    endif
    if iPart == 0 && iBar % 2 == 0 then
      Chord "Pad", iHigh, iBar, iBar < giBars - 2 ? 2 : 1.7, 0.5 + 0.15 * (iBar < 8 ? iBar / 8 : 1)
    elseif iPart == 1 then
      Chord "Pad", iHigh, iBar, 1, 0.6
    endif
    schedule "Bass", At(iBar, 0), At(0, iLast == 1 ? 8 : 13), 0.5, iC[0] - 12
    if iBar >= 8 && iLast == 0 then
      schedule "Bass", At(iBar, 14), At(0, 1.6), 0.3, iC[0] - 5
    endif

    if iBar >= 4 && iLast == 0 then
      iFig[] fillarray 0, iC[1], 0, iC[2], iC[3], 0, iC[2], 0,  0, iC[3], 0, iC[1] + 12, iC[3], 0, iC[2], iC[1]
      if iBar % 4 == 3 then
        iFig fillarray iC[3], 0, iC[2], 0, iC[1], 0, 0, iC[2],  0, iC[3], 0, 0, iC[1] + 12, 0, 0, 0
      endif
      Line "Pluck", iFig, iBar, 1.4, iBar < 8 ? 0.22 : (iBar < 24 ? 0.36 : 0.3), 12
    endif
    if iBar >= 12 && iBar < 28 then
      Hits "Kick", iBar % 2 == 0 ? "o.........o....." : "o......o........", iBar
      Hits "Tick", "....o.......o..o", iBar
    endif
    if iBar >= 16 && iBar < 24 then
      Hits "Hat", "..o...o...o...o.", iBar
      iKeys[] fillarray iC[1], iC[2], iC[3]
      Chord "Keys", iKeys, iBar, 0.8, 0.42
    endif
    if (iBar >= 8 && iBar < 16) || iBar >= 24 then
      iHalf[] init 8
      iAt = 0
      while iAt < 8 do
        iHalf[iAt] = iTune[(iBar % 8) * 8 + iAt]
        iAt += 1
      od
      if iLast == 0 then
        Line "Bell", iHalf, iBar, 1.8, iBar < 24 ? 0.45 : 0.55, 0
      endif
    elseif iPart == 1 then
      schedule "Lead", At(iBar, 4), At(0, 7), 0.3, iC[3] + 12
      schedule "Lead", At(iBar, 11), At(0, 4.5), 0.26, iC[2] + 12
    endif
    iBar += 1
  od
endin

schedule "Song", 0, 0.1
schedule "Master", 0, At(giBars, 0)
</CsInstruments>
<CsScore>
f 0 3600
</CsScore>
</CsoundSynthesizer>
