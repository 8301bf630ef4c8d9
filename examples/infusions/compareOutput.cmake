# Runs PROGRAM on ORDERS.txt in the current folder and compares what it prints, and the exit status
# in the last line, with ORDERS.expected. Windows line ends count as line ends.
execute_process(
  COMMAND ${EMULATOR} ${PROGRAM} ${ORDERS}.txt
  OUTPUT_VARIABLE printed
  ERROR_VARIABLE messages
  RESULT_VARIABLE status)
string(REPLACE "\r\n" "\n" actual "${printed}${messages}exit status ${status}\n")
file(READ ${ORDERS}.expected expected)
if(NOT actual STREQUAL expected)
  message(FATAL_ERROR "printed:\n${actual}\nexpected:\n${expected}")
endif()
