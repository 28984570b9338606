# Who may include whom. Each rule: the files, then what their project includes may begin with.
#   axes -> library (the tick formatter also uses the value formatter of the backend)
#   colors -> library
#   backend -> the axis contract          ombrel -> backend
#   surfaces -> axes, backend, colors
#   plots -> axes, backend                library's entry class -> axes, colors
#   hosts and benchmarks -> installed headers (<...>) and their own
function(check_layer allowed)
  set(files)
  foreach(pattern IN LISTS ARGN)
    file(GLOB found RELATIVE "${ROOT}" "${ROOT}/${pattern}")
    list(APPEND files ${found})
  endforeach()
  if(NOT files)
    message(FATAL_ERROR "No files match ${ARGN} below '${ROOT}'")
  endif()
  foreach(file IN LISTS files)
    file(STRINGS "${ROOT}/${file}" includes
      REGEX "^[ \t]*#[ \t]*include[ \t]*(\"|<(kestrane|ombrel|hosts|tests|benchmarks)/)")
    foreach(include IN LISTS includes)
      if(include MATCHES "detail/" AND NOT file MATCHES "^kestrane/")
        message(SEND_ERROR "${file} reaches behind the public headers: ${include}")
      elseif(NOT include MATCHES "include[ \t]*[\"<](${allowed})" AND NOT include MATCHES "\\.moc\"")
        message(SEND_ERROR "${file} reaches past its layer: ${include}")
      endif()
    endforeach()
  endforeach()
endfunction()

set(formatter "kestrane/backend/(ValueFormatter|Quantity|QuantityManager|Singleton|TranslationManager)\\.h")
check_layer("kestrane/(axes|library)/|${formatter}" "kestrane/axes/*.h" "kestrane/axes/*.cpp")
check_layer("kestrane/(library/|axes/Axis\\.h|colors/ColorMap\\.h)" "kestrane/library/*.h"
  "kestrane/library/*.cpp")
check_layer("kestrane/(colors|library)/" "kestrane/colors/*.h" "kestrane/colors/*.cpp"
  "kestrane/colors/detail/*.h")
check_layer("kestrane/(backend/|axes/Axis\\.h)" "kestrane/backend/*.h")
check_layer("kestrane/(plots|axes|backend|library)/" "kestrane/plots/*.h" "kestrane/plots/*.cpp"
  "kestrane/plots/detail/*.h" "kestrane/plots/detail/*.cpp")
check_layer("kestrane/(surfaces|axes|backend|colors|library)/" "kestrane/surfaces/*.h"
  "kestrane/surfaces/*.cpp" "kestrane/surfaces/detail/*.h" "kestrane/surfaces/detail/*.cpp")
check_layer("kestrane/backend/|ombrel/" "ombrel/*.h" "ombrel/*.cpp")
check_layer("kestrane/|hosts/charting/" "hosts/charting/*.h" "hosts/charting/*.cpp")
check_layer("kestrane/backend/|hosts/data/" "hosts/data/*.h" "hosts/data/*.cpp")
check_layer("kestrane/|hosts/" "hosts/kestrane-chart/*.h" "hosts/kestrane-chart/*.cpp")
check_layer("kestrane/|benchmarks/" "benchmarks/*.cpp")
check_layer("benchmarks/peers/" "benchmarks/peers/*.h" "benchmarks/peers/*.cpp")
