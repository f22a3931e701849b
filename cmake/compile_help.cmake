# Compiles the project in the folder PAGES to HELP_FILE with CHMCMD, which reports errors but ends with status 0.
cmake_minimum_required(VERSION 3.25)

# The compiler writes bytes of memory that it has not set, which are always the same where nothing moves in memory.
# Containers may forbid that; there, two builds differ.
set(unmoved "")
if(DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND setarch -R true RESULT_VARIABLE refused OUTPUT_QUIET ERROR_QUIET)
    if(refused EQUAL 0)
        set(unmoved setarch -R)
    endif()
endif()

execute_process(COMMAND ${unmoved} ${CHMCMD} Calquo2.hhp WORKING_DIRECTORY ${PAGES}
    OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE status)
if(NOT status EQUAL 0 OR output MATCHES "(Error|Warning):")
    message(FATAL_ERROR "chmcmd (status ${status}):\n${output}")
endif()

if(DEFINED ENV{SOURCE_DATE_EPOCH})
    # The time stands in the file's header, and in the first entry of its system data.
    execute_process(COMMAND perl -0777 -pi -e "
        my $time = pack 'V', $ENV{SOURCE_DATE_EPOCH};
        substr($_, 16, 4) = $time;
        s/(\\x03\\0\\0\\0\\x0a\\0\\x04\\0).{4}/$1$time/s or die 'no time in the system data'" ${PAGES}/Calquo2.chm
        COMMAND_ERROR_IS_FATAL ANY)
endif()
file(RENAME ${PAGES}/Calquo2.chm ${HELP_FILE})
