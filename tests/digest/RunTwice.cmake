# What lay in memory before must not count: memory is filled with another pattern each time.
foreach(pattern IN ITEMS 1 170)
  set(ENV{MALLOC_PERTURB_} ${pattern})
  execute_process(COMMAND "${PROGRAM}" 30 OUTPUT_VARIABLE digest_${pattern} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
if(NOT digest_1 STREQUAL digest_170)
  message(FATAL_ERROR "The digests differ:\n${digest_1}\n${digest_170}")
endif()
