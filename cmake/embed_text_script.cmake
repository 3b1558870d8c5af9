# Run by veyruna_embed_text: writes a C++ source that holds one text file as a raw string literal.
file(READ "${INPUT}" text)
if(text MATCHES "\\)embedded\"")
  message(FATAL_ERROR "${INPUT} holds the end mark of the raw string literal")
endif()
file(
  WRITE "${OUTPUT}"
  "#include <string_view>\n\n"
  "namespace veyruna::embedded {\n"
  "extern const std::string_view ${SYMBOL};\n"
  "const std::string_view ${SYMBOL} = R\"embedded(${text})embedded\";\n"
  "}  // namespace veyruna::embedded\n")
