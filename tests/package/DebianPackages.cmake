# Makes the Debian packages, unpacks them into an empty root, and builds and runs every example
# against what lies there.
include("${CMAKE_CURRENT_LIST_DIR}/Consume.cmake")

file(REMOVE_RECURSE "${WORK_DIR}")
set(root "${WORK_DIR}/root")
run(cpack -G DEB --config "${BUILD_DIR}/CPackConfig.cmake" -B "${WORK_DIR}/packages" -C "${CONFIG}")

# A package by its name holds exactly these kinds of files, and says that it needs these packages.
function(expect_package name files depends)
  file(GLOB package "${WORK_DIR}/packages/${name}_*.deb")
  list(LENGTH package count)
  if(NOT count EQUAL 1)
    message(FATAL_ERROR "There are ${count} packages ${name}")
  endif()
  run(dpkg-deb --field "${package}" Depends)
  foreach(need IN LISTS depends)
    if(NOT output MATCHES "${need}")
      message(FATAL_ERROR "${name} does not depend on ${need}: ${output}")
    endif()
  endforeach()
  get_filename_component(contents "${package}" NAME)
  set(contents "${WORK_DIR}/contents/${contents}")
  file(MAKE_DIRECTORY "${contents}" "${root}")
  run(dpkg-deb --extract "${package}" "${contents}")
  run(dpkg-deb --extract "${package}" "${root}")
  file(GLOB_RECURSE found RELATIVE "${contents}" "${contents}/*")
  foreach(file IN LISTS found)
    if(NOT file MATCHES "^usr/(${files})")
      message(FATAL_ERROR "${name} holds ${file}")
    endif()
  endforeach()
  foreach(pattern IN LISTS ARGN)
    if(NOT found MATCHES "${pattern}")
      message(FATAL_ERROR "${name} lacks ${pattern}: ${found}")
    endif()
  endforeach()
endfunction()

expect_package("libkestrane[0-9]*" "lib/[^;]*[.]so[.]" "libqt5core|libqt6core;libtbb"
  "libkestrane[.]so" "libombrel[.]so")
expect_package(libkestrane-dev "include/kestrane/|lib/" "libkestrane0;libboost-dev;libtbb-dev"
  "kestrane[.]pc" "KestraneConfig[.]cmake" "LogAxis[.]h" "libkestrane[.]so;")
expect_package(kestrane-tools "bin/|share/man/" "libkestrane0;libsndfile" "kestrane-viewer.1.gz"
  "bin/kestrane-chart")
expect_package(kestrane-doc "share/doc/kestrane/" "" "README.md" "gestures.md" "minimal/main.cpp")

set(bin "${root}/usr/bin")
expect_output("kestrane-chart ${VERSION}\n" "${bin}/kestrane-chart" --version)
run(man --warnings -l "${root}/usr/share/man/man1/kestrane-chart.1.gz")
if(NOT output MATCHES "--x-relative")
  message(FATAL_ERROR "The man page does not tell of the options:\n${output}")
endif()

foreach(example IN ITEMS minimal window live heat-map)
  build("${EXAMPLES}/${example}" "-DCMAKE_PREFIX_PATH=${root}/usr"
    "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Werror")
endforeach()
expect_output("${first_output}" "${WORK_DIR}/build-minimal/first-chart")
expect_output("2990 points for 100000 samples\n" "${WORK_DIR}/build-live/live")
file(READ "${CMAKE_CURRENT_LIST_DIR}/heat-map.txt" hill)
expect_output("${hill}" "${WORK_DIR}/build-heat-map/heat-map")
# It goes on until it is closed, or falls over.
set(ENV{QT_QPA_PLATFORM} offscreen)
execute_process(COMMAND timeout 2 "${WORK_DIR}/build-window/window" RESULT_VARIABLE result
  ERROR_VARIABLE output)
if(NOT result EQUAL 124)
  message(FATAL_ERROR "examples/window ended with ${result}: ${output}")
endif()
