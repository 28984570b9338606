# Ombrel stands for a library that knows nothing of this project but the declarations in
# kestrane/backend/, and these know nothing of it but the axis contract.
function(check_includes allowed)
  foreach(file IN LISTS ARGN)
    file(STRINGS "${file}" includes REGEX "^[ \t]*#[ \t]*include")
    foreach(include IN LISTS includes)
      if(include MATCHES "\"|<(kestrane|ombrel|hosts|tests|benchmarks|examples)/"
         AND NOT include MATCHES "\"(${allowed})")
        message(SEND_ERROR "${file}: ${include}")
      endif()
    endforeach()
  endforeach()
endfunction()

file(GLOB implementation "${ROOT}/ombrel/*.h" "${ROOT}/ombrel/*.cpp")
file(GLOB declarations "${ROOT}/kestrane/backend/*.h")
if(NOT implementation OR NOT declarations)
  message(FATAL_ERROR "No sources found below '${ROOT}'")
endif()
check_includes("kestrane/backend/|ombrel/" ${implementation})
check_includes("kestrane/backend/|kestrane/axes/Axis\\.h" ${declarations})
