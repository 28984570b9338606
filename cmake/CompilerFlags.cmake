# Flags that every target of this project shares. Call kestrane_compiler_flags(target).
include_guard(GLOBAL)

set(KESTRANE_SANITIZE "" CACHE STRING "Sanitizers to build with: empty, 'address' or 'thread'")
set_property(CACHE KESTRANE_SANITIZE PROPERTY STRINGS "" address thread)

add_library(kestrane_compiler_flags INTERFACE)
target_compile_options(kestrane_compiler_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  # Results must not depend on whether the target machine has fused multiply-add.
  -ffp-contract=off)
if(KESTRANE_QT STREQUAL "Qt6")
  # Its lists count in 64 bits and its colours in floats. What is counted in int fits: the build
  # with Qt 5 says of all else where a conversion narrows.
  target_compile_options(kestrane_compiler_flags INTERFACE -Wno-conversion)
endif()
# tbb/queuing_mutex.h has a function called emit, which Qt's keyword macro would break.
target_compile_definitions(kestrane_compiler_flags INTERFACE QT_NO_KEYWORDS)

if(KESTRANE_SANITIZE STREQUAL "address")
  # g++ leaves float-cast-overflow out of "undefined".
  set(sanitize -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all)
elseif(KESTRANE_SANITIZE STREQUAL "thread")
  set(sanitize -fsanitize=thread)
elseif(KESTRANE_SANITIZE)
  message(FATAL_ERROR "KESTRANE_SANITIZE is '${KESTRANE_SANITIZE}'; it takes 'address' or 'thread'")
endif()
if(KESTRANE_SANITIZE)
  target_compile_options(kestrane_compiler_flags INTERFACE ${sanitize} -fno-omit-frame-pointer)
  target_link_options(kestrane_compiler_flags INTERFACE ${sanitize})
endif()
if(KESTRANE_COVERAGE)
  # What threads count at the same time must not get lost: other counts are differences.
  target_compile_options(kestrane_compiler_flags INTERFACE
    -fprofile-instr-generate -fcoverage-mapping -fprofile-update=atomic)
  target_link_options(kestrane_compiler_flags INTERFACE -fprofile-instr-generate)
endif()
if(KESTRANE_BUILD_FUZZERS)
  target_compile_options(kestrane_compiler_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

function(kestrane_compiler_flags target)
  # BUILD_INTERFACE keeps these flags out of the exported targets.
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:kestrane_compiler_flags>)
endfunction()
