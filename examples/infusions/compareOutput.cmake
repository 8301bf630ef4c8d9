# Runs PROGRAM on the file ORDERS in the current folder, with the texts of a CATALOGUE if there is
# one, and compares what it prints and says with EXPECTED, whose last line is the exit status.
# Windows line ends count as line ends.
set(arguments ${ORDERS})
if(CATALOGUE)
  set(arguments --lang ${CATALOGUE} ${arguments})
endif()
execute_process(
  COMMAND ${EMULATOR} ${PROGRAM} ${arguments}
  OUTPUT_VARIABLE printed
  ERROR_VARIABLE messages
  RESULT_VARIABLE status)
# What Wine itself has to say is not the program's.
string(REGEX REPLACE "(wine: |[0-9a-f]+:(err|fixme|warn):)[^\n]*\n" "" messages "${messages}")
string(REPLACE "\r\n" "\n" actual "${printed}${messages}exit status ${status}\n")
file(READ ${EXPECTED} expected)
if(NOT actual STREQUAL expected)
  message(FATAL_ERROR "printed:\n${actual}\nexpected:\n${expected}")
endif()
