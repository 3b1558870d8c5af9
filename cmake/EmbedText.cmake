# veyruna_embed_text(<target> <symbol> <file>)
# Compiles a text file into the target as `extern const std::string_view veyruna::embedded::<symbol>`.
# The generated source is made again whenever the file changes.

set(VEYRUNA_EMBED_SCRIPT ${CMAKE_CURRENT_LIST_DIR}/embed_text_script.cmake)

function(veyruna_embed_text target symbol file)
  set(generated ${CMAKE_CURRENT_BINARY_DIR}/embedded_${symbol}.cpp)
  add_custom_command(
    OUTPUT ${generated}
    COMMAND ${CMAKE_COMMAND} -DINPUT=${file} -DOUTPUT=${generated} -DSYMBOL=${symbol} -P
            ${VEYRUNA_EMBED_SCRIPT}
    DEPENDS ${file} ${VEYRUNA_EMBED_SCRIPT}
    COMMENT "Embedding ${symbol}"
    VERBATIM)
  target_sources(${target} PRIVATE ${generated})
endfunction()
