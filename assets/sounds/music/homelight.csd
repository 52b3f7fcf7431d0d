<CsoundSynthesizer>
; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; Menu: F major with sevenths and ninths, 100 beats a minute. Electric piano over pads, a light
; beat, the tune on the lead, and the piano alone to turn back to the beginning.
<CsInstruments>
#include "music.orc"
giTempo = 100
giBars = 40
giLevel = 0.1504
giPump = 0.3
giReverb = 0.84

instr Song
  iRoot[] fillarray 41, 45, 38, 46, 43, 48, 41, 48
  iVoices[] fillarray 57, 60, 64, 67,  55, 60, 64, 67,  57, 60, 65, 64,  58, 62, 65, 69,  58, 62, 65, 69,  58, 60, 65, 67,  57, 60, 64, 69,  58, 60, 64, 67
  iTune[] fillarray 72, 0, 0, 69, 0, 67, 64, 0,  67, 0, 0, 0, 0, 0, 64, 65,  69, 0, 0, 65, 0, 64, 62, 0,  65, 0, 0, 0, 62, 0, 65, 0,  70, 0, 0, 69, 0, 67, 65, 0,  67, 0, 0, 72, 0, 0, 70, 0,  69, 0, 0, 0, 67, 0, 65, 0,  64, 0, 0, 0, 0, 0, 67, 0
  iBar = 0
  while iBar < giBars do
    iLast = iBar == giBars - 1 ? 1 : 0
    iAt = iBar % 8
    iC[] init 4
    iNote = 0
    while iNote < 4 do
      iC[iNote] = iVoices[iAt * 4 + iNote]
      iNote += 1
    od
    iR = iRoot[iAt]

    Chord "Keys", iC, iBar, iLast == 1 ? 0.4 : 0.55, 0.5
    if iLast == 0 then
      iNote = 0
      while iNote < 4 do
        schedule "Keys", At(iBar, 10), At(0, 5), 0.36, iC[iNote], 0.2 + iNote * 0.2
        iNote += 1
      od
    endif
    if iBar >= 4 && iBar < 36 then
      Chord "Pad", iC, iBar, 1, iBar < 16 ? 0.4 : 0.52
    endif
    if iBar >= 4 && iLast == 0 then
      iWalk[] fillarray iR, 0, 0, iR, 0, 0, iR + 7, 0, iR, 0, 0, iR + 12, 0, 0, iR + 7, 0
      Line "Bass", iWalk, iBar, 1.7, 0.6, -12 + 12 * (iR < 41 ? 1 : 0)
    endif
    if iBar >= 8 && iBar < 36 then
      Hits "Kick", iBar % 4 == 3 ? "x.....o.x....o.." : "x.....o.x.......", iBar
      Hits "Snare", "....o.......o...", iBar
      Hits "Hat", iBar < 16 ? "..x...x...x...x." : "o.x.o.xoo.x.o.xo", iBar
    endif
    iHalf[] init 8
    iNote = 0
    while iNote < 8 do
      iHalf[iNote] = iTune[iAt * 8 + iNote]
      iNote += 1
    od
    if iBar >= 16 && iBar < 24 then
      Line "Lead", iHalf, iBar, 1.5, 0.46, 0
    elseif iBar >= 24 && iBar < 32 then
      Line "Lead", iHalf, iBar, 1.5, 0.5, 0
      Line "Bell", iHalf, iBar, 1, 0.25, 12
    endif
    if (iBar >= 12 && iBar < 16) || (iBar >= 24 && iBar < 36) then
      iRun[] fillarray iC[0], iC[1], iC[2], iC[3], iC[2], iC[1], iC[3], iC[2], iC[0], iC[1], iC[2], iC[3], iC[1] + 12, iC[3], iC[2], iC[1]
      Line "Pluck", iRun, iBar, 0.9, 0.3, 12
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
