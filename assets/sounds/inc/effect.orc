; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; What all effects share. Each sets giLevel, its gain, so that the loudest tenth of a second of
; every effect has about the same power (-29 dBFS), and ends its instrument with Finish.
sr = 44100
ksmps = 8
nchnls = 1
0dbfs = 1
seed 1971

giLevel = 1

; White noise of full scale, the same in each build but another for effects of another length, so
; that the noise of several at once does not add up in step.
opcode Noise, a, 0
  aOut rand 1, frac(p3 * 31.7), 1
  xout aOut
endop

; An exponential decay from 1 that reaches a thousandth after iSeconds, behind a short attack.
opcode Strike, a, ii
  iAttack, iSeconds xin
  aUp linseg 0, iAttack, 1, 1, 1
  aDown expseg 1, iSeconds, 0.001, 1, 0.0001
  xout aUp * aDown
endop

; A tone whose pitch falls or rises exponentially from iFrom to iTo within iSeconds (and stays).
opcode Glide, a, iii
  iFrom, iTo, iSeconds xin
  aFreq expseg iFrom, iSeconds, iTo, 1, iTo
  aOut poscil 1, aFreq
  xout aOut
endop

; A struck piece of metal: six inharmonic partials that die away, the high ones first.
opcode Metal, a, ii
  iBase, iSeconds xin
  a1 poscil 1.0, iBase
  a2 poscil 0.8, iBase * 1.483
  a3 poscil 0.6, iBase * 2.137
  a4 poscil 0.5, iBase * 2.891
  a5 poscil 0.4, iBase * 3.677
  a6 poscil 0.3, iBase * 5.193
  aLow Strike 0.001, iSeconds
  aHigh Strike 0.001, iSeconds * 0.5
  xout (a1 + a2 + a3) * aLow + (a4 + a5 + a6) * aHigh
endop

; The highest peak that an effect may reach (-16 dBFS). Ten of them at once stay within the range
; of the mixer, which cuts hard.
giCeiling = 0.16

; To the file: no offset, level, rounded peaks, and ramps over iIn and iOut seconds so that nothing
; clicks.
opcode Finish, 0, aii
  aSig, iIn, iOut xin
  aRamp linseg 0, iIn, 1, p3 - iIn - iOut - 0.001, 1, iOut, 0, 0.001, 0
  aSig dcblock2 aSig
  out giCeiling * tanh(aSig * (giLevel / giCeiling)) * aRamp
endop
