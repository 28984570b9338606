# What a shared library exports of this project is its public classes, and nothing behind them.
execute_process(COMMAND "${NM}" -DC --defined-only "${LIBRARY}"
  OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\n]+" symbols "${symbols}")

set(public 0)
foreach(symbol IN LISTS symbols)
  if(symbol MATCHES "pelorin::[^(<]*(detail|anonymous)")
    message(SEND_ERROR "${LIBRARY} exports ${symbol}")
  elseif(symbol MATCHES " (pelorin::|Kestrane::)")
    math(EXPR public "${public} + 1")
  endif()
endforeach()
if(public LESS 50)
  message(SEND_ERROR "${LIBRARY} exports only ${public} symbols of its own")
endif()
