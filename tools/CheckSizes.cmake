# No source file grows past what a reader can keep in mind.
set(limit 500)

file(GLOB_RECURSE files RELATIVE "${ROOT}"
  "${ROOT}/kestrane/*" "${ROOT}/ombrel/*" "${ROOT}/hosts/*" "${ROOT}/tests/*"
  "${ROOT}/benchmarks/*" "${ROOT}/tools/*")
list(FILTER files EXCLUDE REGEX "^tests/fuzz/corpus/")
if(NOT files)
  message(FATAL_ERROR "No files below '${ROOT}'")
endif()
foreach(file IN LISTS files)
  file(READ "${ROOT}/${file}" text)
  string(REGEX REPLACE "[^\n]" "" newlines "${text}")
  string(LENGTH "${newlines}" lines)
  if(lines GREATER limit)
    message(SEND_ERROR "${file} has ${lines} lines; the limit is ${limit}")
  endif()
endforeach()
