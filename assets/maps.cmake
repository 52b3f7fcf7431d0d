# SPDX-FileCopyrightText: The Brightclash developers
# SPDX-License-Identifier: MIT
# Levels: maps of the Tiled editor, compiled by the project's own levelc. It checks that every
# picture, sound, sky and particle system that a level names has a source, so a level is made anew
# when one of those comes or goes as well.
file(GLOB tmxs CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/maps/*.tmx)
file(GLOB_RECURSE named CONFIGURE_DEPENDS
  ${CMAKE_CURRENT_LIST_DIR}/images/*.svg ${CMAKE_CURRENT_LIST_DIR}/sounds/*.csd
  ${CMAKE_CURRENT_LIST_DIR}/data/sky/*.xml ${CMAKE_CURRENT_LIST_DIR}/data/adventures/*.xml)
# Rewritten only when the list of names changes; the contents of those files do not matter here.
file(GENERATE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/named.txt CONTENT "$<JOIN:${named},\n>\n")

set(particles ${CMAKE_CURRENT_LIST_DIR}/data/particles/particles.xml)
file(MAKE_DIRECTORY ${BRIGHTCLASH_GAME_DIR}/maps)
set(levels)
foreach(tmx IN LISTS tmxs)
  get_filename_component(name ${tmx} NAME_WE)
  set(level ${BRIGHTCLASH_GAME_DIR}/maps/${name}.xml)
  add_custom_command(OUTPUT ${level}
    COMMAND levelc ${CMAKE_CURRENT_LIST_DIR} ${tmx} ${level}
    DEPENDS ${tmx} levelc ${particles}
      ${CMAKE_CURRENT_BINARY_DIR}/named.txt
    VERBATIM)
  list(APPEND levels ${level})
endforeach()
add_custom_target(game_maps DEPENDS ${levels})
add_dependencies(game_data game_maps)
