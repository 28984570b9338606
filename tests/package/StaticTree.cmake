# A project that brings the source tree along and links it into its program: examples/minimal, with
# FetchContent standing in for the installed package.
include("${CMAKE_CURRENT_LIST_DIR}/Consume.cmake")

file(REMOVE_RECURSE "${WORK_DIR}")
file(WRITE "${WORK_DIR}/outside/CMakeLists.txt" "
cmake_minimum_required(VERSION 3.25)
project(Outside LANGUAGES CXX)
include(FetchContent)
FetchContent_Declare(Kestrane SOURCE_DIR \"${ROOT}\" OVERRIDE_FIND_PACKAGE)
add_subdirectory(\"${EXAMPLES}/minimal\" minimal)
")
# Nothing here is run for long: without optimization it is built in half of the time.
build("${WORK_DIR}/outside" -DCMAKE_BUILD_TYPE= -DBUILD_SHARED_LIBS=OFF "-DKESTRANE_QT=${QT}")
file(GLOB_RECURSE program "${WORK_DIR}/build-outside/*/first-chart")
expect_output("${first_output}" "${program}")
run(ldd "${program}")
if(output MATCHES "libkestrane|libombrel")
  message(FATAL_ERROR "The program is not static:\n${output}")
endif()
