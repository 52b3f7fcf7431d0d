# SPDX-FileCopyrightText: The Brightclash developers
# SPDX-License-Identifier: MIT
# The game's fonts are rasterised from Debian's DejaVu outlines: regular for small text, bold for
# headings. A font that needs a second page gets one beside the first.
set(dejavu_folder /usr/share/fonts/truetype/dejavu)
find_file(DEJAVU_SANS DejaVuSans.ttf PATHS ${dejavu_folder} REQUIRED)
find_file(DEJAVU_SANS_BOLD DejaVuSans-Bold.ttf PATHS ${dejavu_folder} REQUIRED)

set(font_folder ${BRIGHTCLASH_GAME_DIR}/data/fonts)
file(MAKE_DIRECTORY ${font_folder})
set(fonts)
function(brightclash_font stem outlines size)
  set(font ${font_folder}/${stem}.xml)
  add_custom_command(OUTPUT ${font}
    COMMAND fontc ${outlines} ${size} vera ${font_folder} ${stem}
    DEPENDS fontc ${outlines} VERBATIM)
  set(fonts ${fonts} ${font} PARENT_SCOPE)
endfunction()
brightclash_font(vera_12 ${DEJAVU_SANS} 12)
brightclash_font(verabd_14 ${DEJAVU_SANS_BOLD} 14)
brightclash_font(verabd_18 ${DEJAVU_SANS_BOLD} 18)
brightclash_font(verabd_24 ${DEJAVU_SANS_BOLD} 24)
# Doubled, for the texts of large windows.
brightclash_font(verabd_28 ${DEJAVU_SANS_BOLD} 28)
brightclash_font(verabd_36 ${DEJAVU_SANS_BOLD} 36)
add_custom_target(game_fonts DEPENDS ${fonts})
add_dependencies(game_data game_fonts)
