# SPDX-FileCopyrightText: The Brightclash developers
# SPDX-License-Identifier: MIT
# The game's hand-written texts below data/ go into the game folder as they stand.
file(GLOB_RECURSE texts CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_LIST_DIR}/data
  ${CMAKE_CURRENT_LIST_DIR}/data/*)

# The game run from its build folder keeps the player's settings here; a build must not reset them.
set(players config.txt userconfig.txt)

set(copies)
foreach(text IN LISTS texts)
  set(source ${CMAKE_CURRENT_LIST_DIR}/data/${text})
  set(copy ${BRIGHTCLASH_GAME_DIR}/data/${text})
  get_filename_component(folder ${copy} DIRECTORY)
  file(MAKE_DIRECTORY ${folder})
  if(text IN_LIST players)
    add_custom_command(OUTPUT ${copy}
      COMMAND ${CMAKE_COMMAND} -DSOURCE=${source} -DCOPY=${copy}
        -P ${CMAKE_CURRENT_LIST_DIR}/copy_once.cmake
      DEPENDS ${source} ${CMAKE_CURRENT_LIST_DIR}/copy_once.cmake VERBATIM)
  else()
    add_custom_command(OUTPUT ${copy}
      COMMAND ${CMAKE_COMMAND} -E copy ${source} ${copy}
      DEPENDS ${source} VERBATIM)
  endif()
  list(APPEND copies ${copy})
endforeach()
add_custom_target(game_texts DEPENDS ${copies})
add_dependencies(game_data game_texts)

install(DIRECTORY ${CMAKE_CURRENT_LIST_DIR}/data/ DESTINATION share/brightclash/data)
