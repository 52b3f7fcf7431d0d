; SPDX-FileCopyrightText: The Brightclash developers
; SPDX-License-Identifier: MIT
; The band: instruments and sequencing that all pieces share. A piece sets giTempo (beats a minute),
; giBars (of four beats) and giLevel, and schedules notes from its instrument Song. Whole bars only,
; and everything has died away at the end, so that a piece follows on itself or another without a
; seam.
sr = 44100
ksmps = 32
nchnls = 2
0dbfs = 1
seed 1971

giTempo = 120
giBars = 48
giLevel = 1
; How far everything but the drums sinks under a kick, 0 to 1.
giPump = 0
giReverb = 0.8

gaLeft init 0
gaRight init 0
gaDrums init 0
gaSend init 0
gaEcho init 0
gkDuck init 0

; Seconds from the start to a bar, and to a sixteenth within it.
opcode At, i, ii
  iBar, iStep xin
  xout (iBar * 4 + iStep * 0.25) * 60 / giTempo
endop

; To the mix: pan 0 (left) to 1, and how much goes to the reverb and to the echo.
opcode Mix, 0, aiii
  aSig, iPan, iReverb, iEcho xin
  gaLeft += aSig * sqrt(1 - iPan)
  gaRight += aSig * sqrt(iPan)
  gaSend += aSig * iReverb
  gaEcho += aSig * iEcho
endop

; One bar of drums: sixteen steps, "x" a hit, "X" an accent, "o" a soft one.
opcode Hits, 0, SSi
  SInstr, SBar, iBar xin
  iStep = 0
  while iStep < strlen(SBar) do
    iChar strchar SBar, iStep
    if iChar != 46 then
      iVel = iChar == 88 ? 1 : (iChar == 120 ? 0.75 : 0.4)
      schedule SInstr, At(iBar, iStep), 0.5, iVel
    endif
    iStep += 1
  od
endop

; One bar of notes (MIDI numbers, 0 a rest), evenly spread over the bar, each held iHold spaces.
opcode Line, 0, Si[]iiii
  SInstr, iNotes[], iBar, iHold, iVel, iShift xin
  iCount lenarray iNotes
  iAt = 0
  while iAt < iCount do
    if iNotes[iAt] > 0 then
      iAccent = iAt % 4 == 0 ? 1 : 0.8
      schedule SInstr, At(iBar, iAt * 16 / iCount), At(0, iHold * 16 / iCount), iVel * iAccent, iNotes[iAt] + iShift, iAt / iCount
    endif
    iAt += 1
  od
endop

; A chord over iBars bars.
opcode Chord, 0, Si[]iii
  SInstr, iNotes[], iBar, iBars, iVel xin
  iAt = 0
  while iAt < lenarray(iNotes) do
    schedule SInstr, At(iBar, 0), At(iBars, 0), iVel, iNotes[iAt], 0.2 + 0.6 * iAt / lenarray(iNotes)
    iAt += 1
  od
endop

instr Kick
  p3 = 0.32
  aFreq expseg 170, 0.05, 62, 0.27, 43
  aBody poscil 1, aFreq
  aEnv linseg 0, 0.002, 1, 0.1, 0.6, 0.2, 0, 0.1, 0
  aClick rand 0.3, 0.3, 1
  aClick = aClick * expseg:a(1, 0.012, 0.001, 1, 0.001)
  gaDrums += (aBody * aEnv + aClick) * p4 * 0.72
  gkDuck max gkDuck, linseg:k(1, 0.22, 0, 1, 0) * giPump
endin

instr Snare
  p3 = 0.22
  aNoise rand 1, 0.7, 1
  aNoise butterbp aNoise, 2400, 2600
  aTone poscil 1, expseg:k(260, 0.06, 180, 0.2, 170)
  aOut = (aNoise * expseg:a(1, 0.18, 0.003, 1, 0.003) * 0.9 + aTone * expseg:a(0.6, 0.1, 0.002, 1, 0.002)) * linseg:a(0, 0.001, 1, 0.2, 1, 0.019, 0)
  gaDrums += aOut * p4 * 0.5
  gaSend += aOut * p4 * 0.1
endin

instr Clap
  p3 = 0.24
  aNoise rand 1, 0.2, 1
  aNoise butterbp aNoise, 1500, 1100
  aEnv linseg 0, 0.001, 1, 0.01, 0.2, 0.001, 1, 0.01, 0.2, 0.001, 1, 0.03, 0.35, 0.16, 0, 0.1, 0
  gaDrums += aNoise * aEnv * p4 * 0.7
  gaSend += aNoise * aEnv * p4 * 0.16
endin

instr Hat
  p3 = 0.07
  aNoise rand 1, 0.9, 1
  aNoise butterhp aNoise, 7500
  aOut = aNoise * linseg:a(0, 0.001, 1, 0.025, 0.2, 0.044, 0) * p4 * 0.22
  gaLeft += aOut * 0.8
  gaRight += aOut
endin

instr OpenHat
  p3 = 0.26
  aNoise rand 1, 0.33, 1
  aNoise butterhp aNoise, 6500
  aOut = aNoise * linseg:a(0, 0.002, 1, 0.08, 0.4, 0.17, 0) * p4 * 0.22
  gaLeft += aOut
  gaRight += aOut * 0.8
endin

; A dry wooden tick.
instr Tick
  p3 = 0.06
  aOut poscil 1, 1650
  aOut = aOut * linseg:a(0, 0.001, 1, 0.02, 0.15, 0.035, 0) * p4 * 0.22
  Mix aOut, 0.65, 0.25, 0
endin

; A low drum with a skin.
instr Tom
  p3 = 0.5
  aFreq expseg 125, 0.1, 78, 0.4, 70
  aOut poscil 1, aFreq
  aOut = aOut * linseg:a(0, 0.003, 1, 0.15, 0.4, 0.33, 0) * p4 * 0.6
  Mix aOut, 0.4, 0.35, 0
endin

; Noise that rises over its length, before a new section.
instr Riser
  aNoise rand 1, 0.55, 1
  kCut expseg 300, p3, 6500
  aNoise butterbp aNoise, kCut, kCut * 0.5
  Mix aNoise * linseg:a(0, p3 * 0.9, 1, p3 * 0.1, 0) * p4 * 0.3, 0.5, 0.3, 0
endin

; Round bass: a filtered saw over a sine.
instr Bass
  iFreq mtof p5
  aSaw vco2 0.5, iFreq, 0
  aSub poscil 0.7, iFreq
  kCut expseg iFreq * 9, 0.12, iFreq * 3.5, p3, iFreq * 2
  aOut butterlp aSaw, kCut
  Mix (aOut + aSub) * linseg:a(0, 0.006, 1, p3 - 0.036, 0.75, 0.03, 0) * p4 * 0.4, 0.5, 0, 0
endin

; Hard bass: a driven ladder filter.
instr Grind
  iFreq mtof p5
  aSaw vco2 0.5, iFreq, 0
  aSquare vco2 0.4, iFreq * 1.005, 10
  kCut expseg 1500 + 2200 * p4, 0.14, 420, p3, 300
  aOut moogladder2 aSaw + aSquare, kCut, 0.35
  Mix tanh(aOut * 2.4) * linseg:a(0, 0.004, 1, p3 - 0.024, 0.7, 0.02, 0) * p4 * 0.33, 0.5, 0.02, 0
endin

; Short bright notes for arpeggios.
instr Pluck
  iFreq mtof p5
  aSaw vco2 0.4, iFreq, 0
  aPulse vco2 0.3, iFreq * 1.003, 2, 0.3
  kCut expseg 600 + 4200 * p4, 0.16, 500, p3 + 0.3, 350
  aOut butterlp aSaw + aPulse, kCut
  p3 = p3 + 0.25
  Mix aOut * linseg:a(0, 0.003, 1, 0.12, 0.4, p3 - 0.123, 0) * p4 * 0.58, 0.2 + 0.6 * frac(p6 * 7), 0.22, 0.3
endin

; A bell of two operators.
instr Bell
  iFreq mtof p5
  p3 = p3 + 1.4
  aMod poscil iFreq * 2.2 * p4, iFreq * 3.5
  aMod = aMod * expseg:a(1, p3 * 0.4, 0.05, p3, 0.01)
  aOut poscil 1, iFreq + aMod
  Mix aOut * expseg:a(0.001, 0.004, 1, p3 - 0.004, 0.001) * p4 * 0.26, 0.62, 0.5, 0.35
endin

; An electric piano.
instr Keys
  iFreq mtof p5
  p3 = p3 + 0.3
  aMod poscil iFreq * 1.3 * p4, iFreq
  aTine poscil iFreq * 1.2 * p4, iFreq * 14
  aMod = aMod * expseg:a(1, 0.5, 0.25, p3, 0.1) + aTine * expseg:a(1, 0.06, 0.01, 1, 0.01)
  aOut poscil 1, iFreq + aMod
  aTrem = 1 + 0.18 * lfo:a(1, 4.6)
  Mix aOut * aTrem * linseg:a(0, 0.005, 1, p3 * 0.5, 0.5, p3 * 0.5 - 0.005, 0) * p4 * 0.2, p6, 0.3, 0.1
endin

; A wide slow pad; p4 opens its filter too.
instr Pad
  iFreq mtof p5
  iRise = min(1.2, p3 * 0.35)
  iFall = min(1.4, p3 * 0.4)
  aOne vco2 0.4, iFreq * 1.0035, 0
  aTwo vco2 0.4, iFreq * 0.9965, 0
  kCut = 500 + 1500 * p4 + 350 * lfo:k(1, 0.11)
  aOne butterlp aOne, kCut
  aTwo butterlp aTwo, kCut
  aEnv = linseg:a(0, iRise, 1, p3 - iRise - iFall, 1, iFall, 0) * p4 * 0.26
  gaLeft += (aOne * 0.9 + aTwo * 0.4) * aEnv
  gaRight += (aOne * 0.4 + aTwo * 0.9) * aEnv
  gaSend += (aOne + aTwo) * aEnv * 0.35
endin

; A lead with a late vibrato.
instr Lead
  iFreq mtof p5
  kVib = linseg:k(0, 0.25, 0, 0.2, 0.006, p3, 0.006) * lfo:k(1, 5.4)
  aOne vco2 0.4, iFreq * (1 + kVib), 2, 0.4
  aTwo vco2 0.3, iFreq * 1.006 * (1 + kVib), 0
  aOut butterlp aOne + aTwo, 900 + 2600 * p4
  Mix aOut * linseg:a(0, 0.02, 1, p3 - 0.09, 0.8, 0.07, 0) * p4 * 0.46, 0.46, 0.3, 0.4
endin

; A short chord stab.
instr Stab
  iFreq mtof p5
  aOne vco2 0.4, iFreq, 0
  aTwo vco2 0.4, iFreq * 1.008, 0
  kCut expseg 4200, 0.16, 700, p3, 500
  aOut moogladder2 aOne + aTwo, kCut, 0.2
  Mix aOut * linseg:a(0, 0.004, 1, p3 - 0.034, 0.3, 0.03, 0) * p4 * 0.34, p6, 0.3, 0.25
endin

; A low uneasy drone that beats against itself.
instr Drone
  iFreq mtof p5
  aOne vco2 0.5, iFreq, 0
  aTwo vco2 0.5, iFreq * 1.012, 0
  kCut = 180 + 160 * p4 + 120 * lfo:k(1, 0.07)
  aOut butterlp aOne + aTwo, kCut
  Mix aOut * linseg:a(0, p3 * 0.3, 1, p3 * 0.4, 1, p3 * 0.3, 0) * p4 * 0.55, 0.5, 0.2, 0
endin

; Everything meets here: echo, reverb, ducking, level and the ramps at both ends.
instr Master
  ; The piece ends on the bar, whatever still sounds.
  event_i "e", 0, p3
  iDotted = 45 / giTempo
  aEchoL init 0
  aEchoR init 0
  aEchoIn butterlp gaEcho, 3200
  aEchoL delay aEchoIn + aEchoR * 0.38, iDotted
  aEchoR delay aEchoL * 0.8, iDotted
  aWetL, aWetR reverbsc gaSend + (aEchoL + aEchoR) * 0.15, gaSend, giReverb, 7000
  aDuck = a(port(1 - gkDuck, 0.004))
  aLeft = (gaLeft + aEchoL * 0.5 + aWetL * 0.6) * aDuck + gaDrums
  aRight = (gaRight + aEchoR * 0.5 + aWetR * 0.6) * aDuck + gaDrums
  aRamp linseg 0, 0.004, 1, p3 - 0.904, 1, 0.9, 0
  aLeft dcblock2 aLeft
  aRight dcblock2 aRight
  outs tanh(aLeft) * aRamp * giLevel, tanh(aRight) * aRamp * giLevel
  gaLeft = 0
  gaRight = 0
  gaDrums = 0
  gaSend = 0
  gaEcho = 0
  gkDuck = 0
endin
