# Installs the build, moves the tree, and builds and runs the README's first program against it;
# then once more by way of pkg-config.
include("${CMAKE_CURRENT_LIST_DIR}/Consume.cmake")

set(installed "${WORK_DIR}/installed")
set(prefix "${WORK_DIR}/moved") # Nothing may remember where it was installed.
file(REMOVE_RECURSE "${WORK_DIR}")
run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${installed}" --config "${CONFIG}")
file(RENAME "${installed}" "${prefix}")
file(GLOB_RECURSE private_headers "${prefix}/include/*detail*")
if(private_headers)
  message(FATAL_ERROR "Private headers are installed: ${private_headers}")
endif()

expect_shown("${README}" "```cpp" minimal/main.cpp)
expect_shown("${README}" "```cmake" minimal/CMakeLists.txt)
expect_shown("${GUIDE}" "~~~cpp" window/main.cpp)
build("${EXAMPLES}/minimal" "-DCMAKE_PREFIX_PATH=${prefix}")
expect_output("${first_output}" "${WORK_DIR}/build-minimal/first-chart")

set(ENV{PKG_CONFIG_PATH} "${prefix}/${LIBDIR}/pkgconfig")
run(pkg-config --cflags --libs kestrane)
separate_arguments(options UNIX_COMMAND "${output}")
if(SANITIZE)
  list(APPEND options "-fsanitize=${SANITIZE}")
endif()
run(${CXX_COMPILER} -std=c++17 -fPIC "${EXAMPLES}/minimal/main.cpp" ${options}
  "-Wl,-rpath,${prefix}/${LIBDIR}" -o "${WORK_DIR}/by-pkg-config")
expect_output("${first_output}" "${WORK_DIR}/by-pkg-config")
