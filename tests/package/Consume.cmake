# What the tests of the package share. Included by scripts that know EXAMPLES, README, WORK_DIR,
# GENERATOR, CXX_COMPILER, CONFIG and SANITIZE.
function(run)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    list(JOIN ARGN " " command)
    message(FATAL_ERROR "${command}\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

# A command that prints this, to a letter.
function(expect_output expected)
  run(${ARGN})
  if(NOT output STREQUAL expected)
    message(FATAL_ERROR "${ARGN} printed\n${output}\nand not\n${expected}")
  endif()
endfunction()

# The first block of a language in the README.
function(read_block language variable)
  file(READ "${README}" readme)
  if(NOT readme MATCHES "\n```${language}\n([^`]*)```")
    message(FATAL_ERROR "${README} has no block of ${language}")
  endif()
  set(${variable} "${CMAKE_MATCH_1}" PARENT_SCOPE)
endfunction()

# The README shows the example, word by word, and what it prints.
function(expect_as_in_readme file language)
  read_block(${language} shown)
  file(READ "${EXAMPLES}/minimal/${file}" text)
  if(NOT text STREQUAL shown)
    message(FATAL_ERROR "README.md shows another ${file} than that of examples/minimal")
  endif()
endfunction()

# An outside project with these further options.
function(build source)
  set(flags)
  if(SANITIZE)
    set(flags "-DCMAKE_CXX_FLAGS=-fsanitize=${SANITIZE}")
  endif()
  get_filename_component(name "${source}" NAME)
  set(build "${WORK_DIR}/build-${name}")
  run(${CMAKE_COMMAND} -S "${source}" -B "${build}" -G "${GENERATOR}"
    "-DCMAKE_CXX_COMPILER=${CXX_COMPILER}" "-DCMAKE_BUILD_TYPE=${CONFIG}" ${flags} ${ARGN})
  run(${CMAKE_COMMAND} --build "${build}" --config "${CONFIG}")
endfunction()

read_block(text first_output)
