# The artwork is drawn when the program is built, once for each scale of a display, so that
# the program itself only has to unpack a picture that fits.

find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(OPTIPNG optipng REQUIRED)

# In percent.
set(artwork_scales 100 125 150 175 200 250 300)

# Without losing anything: no alpha where nothing is transparent, a palette where there are few
# colours, and packed in the way that is unpacked fastest.
set(repack ${OPTIPNG} -quiet -f0 -zc9 -zm8 -zs0)

# Sets `zoom` to what rsvg-convert calls `scale`.
macro(zoom_of scale)
  string(REGEX REPLACE "(..)$" ".\\1" zoom ${scale})
endmacro()

# Sets `before` and `behind` to the edges of what begins at `start` and is `length` long, at
# `scale` in pixels and rounded outwards.
macro(edges_of start length scale)
  math(EXPR before "${start} * ${scale} / 100")
  math(EXPR behind "((${start} + ${length}) * ${scale} + 99) / 100")
endmacro()

# Draws at every scale each of `DRAWINGS`, and of the drawing `PARTED` only `PARTS`, rectangles
# "left top width height"; draws `ICON` at `ICON_SIZES` pixels. Puts the source of a resource
# `RESOURCE` with all these pictures into the variable `source`. They are
# ":/artwork/SCALE/NAME.png", with "-N" behind the name for part N from 0, and
# ":/artwork/icon/SIZE.png". The header generated/artwork_list.h has the scales and the parts.
function(orravane_artwork source)
  cmake_parse_arguments(arg "" "RESOURCE;PARTED;ICON" "DRAWINGS;PARTS;ICON_SIZES" ${ARGN})
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/artwork)
  set(pictures)
  foreach(name ${artwork_scales} icon)
    file(MAKE_DIRECTORY ${folder}/${name})
  endforeach()

  foreach(drawing ${arg_DRAWINGS})
    cmake_path(GET drawing STEM name)
    set(made)
    set(commands)
    foreach(scale ${artwork_scales})
      zoom_of(${scale})
      set(picture ${folder}/${scale}/${name}.png)
      list(APPEND commands COMMAND ${RSVG_CONVERT} --zoom ${zoom} --output ${picture} ${drawing})
      list(APPEND made ${picture})
    endforeach()
    add_custom_command(OUTPUT ${made} ${commands} COMMAND ${repack} ${made} DEPENDS ${drawing} VERBATIM)
    list(APPEND pictures ${made})
  endforeach()

  cmake_path(GET arg_PARTED STEM name)
  set(rectangles)
  set(number 0)
  foreach(part ${arg_PARTS})
    separate_arguments(part)
    list(GET part 0 left)
    list(GET part 1 top)
    list(GET part 2 width)
    list(GET part 3 height)
    list(APPEND rectangles "QRect(${left}, ${top}, ${width}, ${height})")
    set(made)
    set(commands)
    foreach(scale ${artwork_scales})
      zoom_of(${scale})
      set(picture ${folder}/${scale}/${name}-${number}.png)
      edges_of(${left} ${width} ${scale})
      math(EXPR columns "${behind} - ${before}")
      set(place --left=-${before}px --page-width ${columns})
      edges_of(${top} ${height} ${scale})
      math(EXPR rows "${behind} - ${before}")
      list(APPEND place --top=-${before}px --page-height ${rows})
      list(APPEND commands COMMAND ${RSVG_CONVERT} --zoom ${zoom} ${place} --output ${picture} ${arg_PARTED})
      list(APPEND made ${picture})
    endforeach()
    add_custom_command(OUTPUT ${made} ${commands} COMMAND ${repack} ${made} DEPENDS ${arg_PARTED} VERBATIM)
    list(APPEND pictures ${made})
    math(EXPR number "${number} + 1")
  endforeach()

  foreach(size ${arg_ICON_SIZES})
    set(picture ${folder}/icon/${size}.png)
    add_custom_command(
      OUTPUT ${picture}
      COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output ${picture} ${arg_ICON}
      COMMAND ${repack} ${picture}
      DEPENDS ${arg_ICON}
      VERBATIM)
    list(APPEND pictures ${picture})
  endforeach()

  string(JOIN ", " artwork_scale_list ${artwork_scales})
  string(JOIN ",\n    " artwork_part_list ${rectangles})
  configure_file(${PROJECT_SOURCE_DIR}/cmake/artwork_list.h.in ${PROJECT_BINARY_DIR}/generated/artwork_list.h @ONLY)

  set(files)
  foreach(picture ${pictures})
    cmake_path(RELATIVE_PATH picture BASE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR})
    string(APPEND files "<file>${picture}</file>\n")
  endforeach()
  set(resource ${CMAKE_CURRENT_BINARY_DIR}/${arg_RESOURCE}.qrc)
  file(CONFIGURE OUTPUT ${resource} CONTENT "<RCC><qresource prefix=\"/\">\n${files}</qresource></RCC>\n" @ONLY)
  # A PNG does not get smaller by packing it once more.
  # The first format has no times in it, so the same drawings make the same program.
  qt_add_resources(made_source ${resource} OPTIONS --no-compress --format-version 1)
  set(${source} ${made_source} PARENT_SCOPE)
endfunction()
