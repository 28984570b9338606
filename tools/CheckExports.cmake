# What a shared library exports of this project is its public classes, nothing behind them, and just
# what a checked-in list says: a change of the binary interface has to be meant. With -D WRITE=ON it
# writes the list instead, which shows in the diff what a change is.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND "${NM}" -DC --defined-only "${LIBRARY}"
  OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "operator\\[\\]" "operator@" symbols "${symbols}") # Brackets upset lists.
string(REGEX MATCHALL "[^\n]+" symbols "${symbols}")

set(exported)
foreach(symbol IN LISTS symbols)
  if(symbol MATCHES "pelorin::[^(<]*(detail|anonymous)")
    message(SEND_ERROR "${LIBRARY} exports ${symbol}")
  endif()
  # Functions and variables; those of the standard library for our classes are as the compiler likes.
  if(symbol MATCHES "^[0-9a-f]+ [TWBu] (.*)$" AND
     CMAKE_MATCH_1 MATCHES "^((void|bool|int|double) )?(pelorin::|Kestrane::)" AND
     NOT symbol MATCHES "[*&] (const& )?std::|{lambda")
    string(REGEX REPLACE "^[0-9a-f]+ [TWBu] " "" symbol "${symbol}")
    list(APPEND exported "${symbol}")
  endif()
endforeach()
list(REMOVE_DUPLICATES exported)
list(SORT exported)
list(LENGTH exported count)
if(count LESS 50)
  message(FATAL_ERROR "${LIBRARY} exports only ${count} symbols of its own")
endif()

if(WRITE)
  list(JOIN exported "\n" text)
  string(REPLACE "operator@" "operator[]" text "${text}")
  file(WRITE "${LIST}" "${text}\n")
  return()
endif()

file(READ "${LIST}" listed)
if(QT STREQUAL "Qt6") # Where this is another name for that.
  string(REPLACE "QVector<" "QList<" listed "${listed}")
endif()
string(REPLACE "operator[]" "operator@" listed "${listed}")
string(REGEX MATCHALL "[^\n]+" listed "${listed}")
set(new ${exported})
list(REMOVE_ITEM new ${listed})
list(REMOVE_ITEM listed ${exported})
foreach(symbol IN LISTS new)
  message(SEND_ERROR "${LIST}: ${symbol} is exported, but not listed")
endforeach()
foreach(symbol IN LISTS listed)
  message(SEND_ERROR "${LIST}: ${symbol} is not exported any more")
endforeach()
