# Plays EVENTS on the demo and compares the output with its .expected file. Any message fails the test too.
string(REGEX REPLACE "\\.events$" ".expected" expected_file ${EVENTS})
file(MAKE_DIRECTORY ${OUT})
execute_process(
  COMMAND ${PLAYER} ${DATA} --script script.tgx --size 1024x768 --events ${EVENTS} --out ${OUT}
  OUTPUT_VARIABLE printed ERROR_VARIABLE messages RESULT_VARIABLE status)
file(READ ${expected_file} expected)
if(NOT status EQUAL 0 OR messages)
  message(FATAL_ERROR "status ${status}\n${messages}")
endif()
if(NOT printed STREQUAL expected)
  message(FATAL_ERROR "expected (${expected_file}):\n${expected}\nprinted:\n${printed}")
endif()
