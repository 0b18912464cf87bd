# The rival bands file. data/bands.txt is the readable table; make_bands turns it into
# bin/bands.dat, which the game finds beside itself, and into a built-in copy compiled into
# the game for when no bands.dat can be read.
add_executable(tourvane-make-bands tools/make_bands.cpp core/file_port.cpp
                                   rules/files/record_file.cpp rules/files/cp1252.cpp)
target_include_directories(tourvane-make-bands PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(tourvane-make-bands PRIVATE tourvane_warnings)
if(EMSCRIPTEN)
  # In the web build the tool runs under node at build time, on the real files, with its wasm
  # inside its script (node's own fetch cannot load it from the disk).
  # emcmake's emulator passes node a flag that newer nodes refuse: plain node runs it.
  target_link_options(tourvane-make-bands PRIVATE -sNODERAWFS=1 -sSINGLE_FILE=1)
  find_program(TOURVANE_NODE NAMES node nodejs REQUIRED)
  set_target_properties(tourvane-make-bands PROPERTIES CROSSCOMPILING_EMULATOR ${TOURVANE_NODE})
endif()

set(TOURVANE_BANDS_TABLE ${CMAKE_CURRENT_SOURCE_DIR}/data/bands.txt)
set(TOURVANE_BANDS_DAT ${CMAKE_BINARY_DIR}/bin/bands.dat)
set(TOURVANE_BANDS_BUILTIN ${CMAKE_BINARY_DIR}/generated/bands_builtin.cpp)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/bin ${CMAKE_BINARY_DIR}/generated)
add_custom_command(
  OUTPUT ${TOURVANE_BANDS_DAT} ${TOURVANE_BANDS_BUILTIN}
  COMMAND tourvane-make-bands ${TOURVANE_BANDS_TABLE} ${TOURVANE_BANDS_DAT}
          ${TOURVANE_BANDS_BUILTIN}
  DEPENDS tourvane-make-bands ${TOURVANE_BANDS_TABLE}
  COMMENT "Making bands.dat from data/bands.txt"
  VERBATIM)
target_sources(tourvane_core PRIVATE ${TOURVANE_BANDS_BUILTIN})

# The installed copy is the last place the game looks: first where it lies from the program
# (so that an installed tree can be moved, or packaged for another prefix), then where it was
# installed.
file(RELATIVE_PATH TOURVANE_DATADIR_FROM_BIN ${CMAKE_INSTALL_FULL_BINDIR}
     ${CMAKE_INSTALL_FULL_DATADIR}/tourvane)
set_property(SOURCE rules/music/bands.cpp APPEND PROPERTY COMPILE_DEFINITIONS
             TOURVANE_DATADIR_FROM_BIN="${TOURVANE_DATADIR_FROM_BIN}"
             TOURVANE_DATADIR="${CMAKE_INSTALL_FULL_DATADIR}/tourvane")
install(FILES ${TOURVANE_BANDS_DAT} DESTINATION ${CMAKE_INSTALL_DATADIR}/tourvane)
