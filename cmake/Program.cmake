# kestrane_program(TARGET SUMMARY): installs a program, and its man page, which help2man makes of
# what the program says of itself.
include_guard(GLOBAL)

find_program(HELP2MAN help2man)
find_program(GZIP gzip)
if(NOT HELP2MAN OR NOT GZIP)
  message(STATUS "No man pages: they need help2man and gzip")
endif()

function(kestrane_program target summary)
  install(TARGETS ${target} RUNTIME COMPONENT Tools)
  if(NOT HELP2MAN OR NOT GZIP OR KESTRANE_SANITIZE)
    return()
  endif()
  set(page "${CMAKE_CURRENT_BINARY_DIR}/${target}.1")
  add_custom_command(OUTPUT "${page}.gz"
    COMMAND "${HELP2MAN}" --no-info --name "${summary}" --output "${page}" "$<TARGET_FILE:${target}>"
    COMMAND "${GZIP}" -9nf "${page}"
    DEPENDS ${target} VERBATIM)
  add_custom_target(${target}-man ALL DEPENDS "${page}.gz")
  install(FILES "${page}.gz" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT Tools)
endfunction()
