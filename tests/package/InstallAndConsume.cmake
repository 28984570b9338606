# Installs the build, moves the tree, and builds and runs the README's first program against it,
# word by word as it stands there; then once more by way of pkg-config.
function(run)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    list(JOIN ARGN " " command)
    message(FATAL_ERROR "${command}\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

function(read_block language variable)
  file(READ "${README}" readme)
  if(NOT readme MATCHES "\n```${language}\n([^`]*)```")
    message(FATAL_ERROR "${README} has no block of ${language}")
  endif()
  set(${variable} "${CMAKE_MATCH_1}" PARENT_SCOPE)
endfunction()

set(installed "${WORK_DIR}/installed")
set(prefix "${WORK_DIR}/moved") # Nothing may remember where it was installed.
set(consumer "${WORK_DIR}/consumer")
file(REMOVE_RECURSE "${installed}" "${prefix}" "${consumer}")
run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${installed}" --config "${CONFIG}")
file(RENAME "${installed}" "${prefix}")
file(GLOB_RECURSE private_headers "${prefix}/include/*detail*")
if(private_headers)
  message(FATAL_ERROR "Private headers are installed: ${private_headers}")
endif()

read_block(cpp program)
read_block(cmake project)
read_block(text expected)
file(WRITE "${consumer}/main.cpp" "${program}")
file(WRITE "${consumer}/CMakeLists.txt" "${project}")

# What came out of either way.
function(expect_output)
  run(${ARGN})
  if(NOT output STREQUAL expected)
    message(FATAL_ERROR "${ARGN} printed\n${output}\nand not, as the README says,\n${expected}")
  endif()
endfunction()

set(flags)
if(SANITIZE)
  set(flags "-DCMAKE_CXX_FLAGS=-fsanitize=${SANITIZE}")
endif()
run(${CMAKE_COMMAND} -S "${consumer}" -B "${consumer}/build" -G "${GENERATOR}"
  "-DCMAKE_PREFIX_PATH=${prefix}" "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}"
  "-DCMAKE_BUILD_TYPE=${CONFIG}" ${flags})
run(${CMAKE_COMMAND} --build "${consumer}/build" --config "${CONFIG}")
expect_output("${consumer}/build/first-chart")

set(ENV{PKG_CONFIG_PATH} "${prefix}/${LIBDIR}/pkgconfig")
run(pkg-config --cflags --libs kestrane)
separate_arguments(options UNIX_COMMAND "${output}")
if(SANITIZE)
  list(APPEND options "-fsanitize=${SANITIZE}")
endif()
run(${CXX_COMPILER} -std=c++17 -fPIC "${consumer}/main.cpp" ${options} "-Wl,-rpath,${prefix}/${LIBDIR}"
  -o "${consumer}/by-pkg-config")
expect_output("${consumer}/by-pkg-config")
