# SPDX-FileCopyrightText: The Brightclash developers
# SPDX-License-Identifier: MIT
# Every picture of the game is an SVG below images/, rendered to the same place below data/:
# images/images/player.svg becomes data/images/player.png.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(MAGICK_CONVERT convert REQUIRED)

# Pictures that the game asks for as Targa files.
set(BRIGHTCLASH_TGA_IMAGES
  particles/beam particles/brightpart particles/defaultparticle particles/laserbeam)

file(GLOB_RECURSE svgs CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_LIST_DIR}/images
  ${CMAKE_CURRENT_LIST_DIR}/images/*.svg)
set(images)
foreach(svg IN LISTS svgs)
  string(REGEX REPLACE "\\.svg$" "" name ${svg})
  get_filename_component(folder ${name} DIRECTORY)
  file(MAKE_DIRECTORY ${BRIGHTCLASH_GAME_DIR}/data/${folder})
  set(source ${CMAKE_CURRENT_LIST_DIR}/images/${svg})
  if(name IN_LIST BRIGHTCLASH_TGA_IMAGES)
    set(image ${BRIGHTCLASH_GAME_DIR}/data/${name}.tga)
    set(between ${CMAKE_CURRENT_BINARY_DIR}/${name}.png)
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/${folder})
    # Rows from the top, which is how the game's image loader expects a Targa file.
    add_custom_command(OUTPUT ${image}
      COMMAND ${RSVG_CONVERT} ${source} -o ${between}
      COMMAND ${MAGICK_CONVERT} ${between} -depth 8 -type TrueColorAlpha -compress none
        -orient TopLeft ${image}
      DEPENDS ${source} VERBATIM)
  else()
    set(image ${BRIGHTCLASH_GAME_DIR}/data/${name}.png)
    add_custom_command(OUTPUT ${image}
      COMMAND ${RSVG_CONVERT} ${source} -o ${image} DEPENDS ${source} VERBATIM)
  endif()
  list(APPEND images ${image})
endforeach()
add_custom_target(game_images DEPENDS ${images})
add_dependencies(game_data game_images)
