# As Debian wants its changelogs and manual pages, in the folder that CPack makes the package from.
file(GLOB_RECURSE texts ${CPACK_TEMPORARY_DIRECTORY}/*/changelog ${CPACK_TEMPORARY_DIRECTORY}/*.1)
execute_process(COMMAND gzip -9n ${texts} COMMAND_ERROR_IS_FATAL ANY)
