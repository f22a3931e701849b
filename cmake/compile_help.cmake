# Compiles the project in the folder PAGES to HELP_FILE with CHMCMD, which reports errors but ends with status 0.
cmake_minimum_required(VERSION 3.25)

execute_process(COMMAND ${CHMCMD} Calquo2.hhp WORKING_DIRECTORY ${PAGES}
    OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR output MATCHES "(Error|Warning):")
    message(FATAL_ERROR "chmcmd (status ${status}):\n${output}")
endif()
file(RENAME ${PAGES}/Calquo2.chm ${HELP_FILE})
