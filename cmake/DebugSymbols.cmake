# Symbols name the sources by their paths in the project, so that every folder gives the same.
set(SYMBOL_OPTIONS -g -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)

# keep_symbols_apart(TARGET): the file itself is stripped and names its symbols, which go to symbols/FILE.debug.
set(SYMBOLS_FOLDER ${CMAKE_BINARY_DIR}/symbols)
file(MAKE_DIRECTORY ${SYMBOLS_FOLDER})

function(keep_symbols_apart target)
    set(symbols ${SYMBOLS_FOLDER}/$<TARGET_FILE_NAME:${target}>.debug)
    target_compile_options(${target} PRIVATE ${SYMBOL_OPTIONS})
    # Without the times of linking and of copying, the same sources give the same file.
    set(without_time ${CMAKE_COMMAND} -E env SOURCE_DATE_EPOCH=0)
    target_link_options(${target} PRIVATE -Wl,--no-insert-timestamp)
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND ${without_time} ${CMAKE_OBJCOPY} --only-keep-debug $<TARGET_FILE:${target}> ${symbols}
        COMMAND ${without_time} ${CMAKE_STRIP} --strip-all $<TARGET_FILE:${target}>
        COMMAND ${without_time} ${CMAKE_OBJCOPY} --add-gnu-debuglink=${symbols} $<TARGET_FILE:${target}>
        VERBATIM)
endfunction()
