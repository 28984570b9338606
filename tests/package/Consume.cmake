# What the tests of the package share. Included by scripts that know EXAMPLES, README, GUIDE, WORK_DIR,
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

# The first block in a document behind this fence.
function(read_block document fence variable)
  file(READ "${document}" text)
  string(SUBSTRING "${fence}" 0 1 mark)
  if(NOT text MATCHES "\n${fence}\n([^${mark}]*)${mark}")
    message(FATAL_ERROR "${document} has no block of ${fence}")
  endif()
  set(${variable} "${CMAKE_MATCH_1}" PARENT_SCOPE)
endfunction()

# A document shows a file of an example, word by word.
function(expect_shown document fence example)
  read_block("${document}" "${fence}" shown)
  file(READ "${EXAMPLES}/${example}" text)
  if(NOT text STREQUAL shown)
    message(FATAL_ERROR "${document} shows another ${example}")
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

read_block("${README}" "```text" first_output)
