# Runs PROGRAM on ORDERS.txt in the current folder and compares what it prints with EXPECTED, whose
# last line is the exit status. With a CATALOGUE, its texts are used and the messages, which end in
# the path of the log, are left out. Windows line ends count as line ends.
set(arguments ${ORDERS}.txt)
if(CATALOGUE)
  set(arguments --lang ${CATALOGUE} ${arguments})
endif()
execute_process(
  COMMAND ${EMULATOR} ${PROGRAM} ${arguments}
  OUTPUT_VARIABLE printed
  ERROR_VARIABLE messages
  RESULT_VARIABLE status)
if(CATALOGUE)
  set(messages "")
endif()
string(REPLACE "\r\n" "\n" actual "${printed}${messages}exit status ${status}\n")
file(READ ${EXPECTED} expected)
if(NOT actual STREQUAL expected)
  message(FATAL_ERROR "printed:\n${actual}\nexpected:\n${expected}")
endif()
