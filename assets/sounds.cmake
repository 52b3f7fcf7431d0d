# SPDX-FileCopyrightText: The Brightclash developers
# SPDX-License-Identifier: MIT
# Sounds and music, rendered from assets/sounds/**.csd to the same places below data/sounds/: WAV,
# and Ogg Vorbis for the folders music and test. The inc folder holds what the pieces share.
find_program(CSOUND csound REQUIRED)
# csound writes Ogg itself, but with another stream number each time; oggenc makes builds repeat.
find_program(OGGENC oggenc REQUIRED)

set(sound_sources ${CMAKE_CURRENT_LIST_DIR}/sounds)
set(sound_folder ${BRIGHTCLASH_GAME_DIR}/data/sounds)
file(GLOB_RECURSE pieces CONFIGURE_DEPENDS RELATIVE ${sound_sources} ${sound_sources}/*.csd)

set(sounds)
foreach(piece IN LISTS pieces)
  get_filename_component(folder ${piece} DIRECTORY)
  get_filename_component(name ${piece} NAME_WE)
  file(MAKE_DIRECTORY ${sound_folder}/${folder} ${CMAKE_CURRENT_BINARY_DIR}/sounds/${folder})
  set(source ${sound_sources}/${piece})
  # Only what a piece includes makes it new.
  file(STRINGS ${source} includes REGEX "^#include \"")
  string(REGEX REPLACE "#include \"([^\"]+)\"" "${sound_sources}/inc/\\1" includes "${includes}")
  set(render ${CSOUND} -d -m0 --env:INCDIR=${sound_sources}/inc)
  if(folder STREQUAL "music" OR folder STREQUAL "test")
    set(sound ${sound_folder}/${folder}/${name}.ogg)
    set(raw ${CMAKE_CURRENT_BINARY_DIR}/sounds/${folder}/${name}.wav)
    add_custom_command(OUTPUT ${sound}
      COMMAND ${render} -3 -W -o ${raw} --logfile=${raw}.log ${source}
      COMMAND ${OGGENC} -Q -q 4 --serial 1 -o ${sound} ${raw}
      COMMAND ${CMAKE_COMMAND} -E rm ${raw}
      DEPENDS ${source} ${includes} VERBATIM)
  else()
    set(sound ${sound_folder}/${folder}/${name}.wav)
    add_custom_command(OUTPUT ${sound}
      COMMAND ${render} -W -o ${sound}
        --logfile=${CMAKE_CURRENT_BINARY_DIR}/sounds/${folder}/${name}.log ${source}
      DEPENDS ${source} ${includes} VERBATIM)
  endif()
  list(APPEND sounds ${sound})
endforeach()
add_custom_target(game_sounds DEPENDS ${sounds})
add_dependencies(game_data game_sounds)
