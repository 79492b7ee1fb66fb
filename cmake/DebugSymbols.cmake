# keep_symbols_apart(TARGET): the file itself is stripped and names its symbols, which go to symbols/FILE.debug.
set(SYMBOLS_FOLDER ${CMAKE_BINARY_DIR}/symbols)
file(MAKE_DIRECTORY ${SYMBOLS_FOLDER})

function(keep_symbols_apart target)
    set(symbols ${SYMBOLS_FOLDER}/$<TARGET_FILE_NAME:${target}>.debug)
    target_compile_options(${target} PRIVATE -g)
    # Without the time of linking, the same sources give the same file.
    target_link_options(${target} PRIVATE -Wl,--no-insert-timestamp)
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND ${CMAKE_OBJCOPY} --only-keep-debug $<TARGET_FILE:${target}> ${symbols}
        COMMAND ${CMAKE_STRIP} --strip-all $<TARGET_FILE:${target}>
        COMMAND ${CMAKE_OBJCOPY} --add-gnu-debuglink=${symbols} $<TARGET_FILE:${target}>
        VERBATIM)
endfunction()
