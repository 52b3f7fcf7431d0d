; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; What the sounds that loop without a seam are made of: everything repeats after giSeconds, the
; length of the file, because it is read from tables of that length.
sr = 44100
ksmps = 20
nchnls = 1
0dbfs = 1
seed 1971

giLevel = 1
giSeconds = 1

; A table of giSeconds with iCount sines between iLow and iHigh Hz, at random (whole) numbers of
; turns and phases, louder towards the low end by iTilt; it begins where the wave crosses zero.
opcode Cloud, i, iiii
  iLow, iHigh, iCount, iTilt xin
  iParts[] init iCount * 3
  iAt = 0
  while iAt < iCount do
    iHz random log(iLow), log(iHigh)
    iHz = exp(iHz)
    iPhase random 0, 360
    iParts[iAt * 3] = int(iHz * giSeconds + 0.5)
    iParts[iAt * 3 + 1] = (iLow / iHz) ^ iTilt
    iParts[iAt * 3 + 2] = iPhase
    iAt += 1
  od
  iTable ftgen 0, 0, -giSeconds * sr, 9, iParts
  xout iTable
endop

; Where a table first crosses zero upwards, in turns.
opcode Crossing, i, i
  iTable xin
  iAt = 1
  while tab_i(iAt - 1, iTable) > 0 || tab_i(iAt, iTable) <= 0 do
    iAt += 1
  od
  xout iAt / ftlen(iTable)
endop

; The table from its crossing on.
opcode Loop, a, i
  iTable xin
  aOut poscil 1, 1 / giSeconds, iTable, Crossing(iTable)
  xout aOut
endop

; A slow wave of iTurns a file between iLeast and 1, least at the seam.
opcode Swell, a, ii
  iTurns, iLeast xin
  aWave poscil 1, iTurns / giSeconds, -1, 0.75
  xout iLeast + (1 - iLeast) * (0.5 + 0.5 * aWave)
endop
