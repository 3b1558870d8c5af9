# What differs where the engine is built for browsers.

# Small before quick: drawing in the browser takes ten times as long as calculating.
set(CMAKE_CXX_FLAGS_RELEASE "-Oz -DNDEBUG -flto -fno-rtti -mbulk-memory -msign-ext -mnontrapping-fptoint")
target_compile_options(veyruna_options INTERFACE -include ${PROJECT_SOURCE_DIR}/web/library_gaps.h)
target_link_options(veyruna_options INTERFACE -fwasm-exceptions)

# veyruna_throws(<file>...): sources through which errors of a person's words pass. No other source is
# ready for them, which halves it.
function(veyruna_throws)
  set_source_files_properties(${ARGN} PROPERTIES COMPILE_OPTIONS -fwasm-exceptions)
endfunction()

# The system's own headers beside this library's would hide those for browsers.
find_path(VEYRUNA_JSON_HEADERS nlohmann/json.hpp PATHS /usr/include /usr/local/include REQUIRED
          NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/headers)
file(CREATE_LINK ${VEYRUNA_JSON_HEADERS}/nlohmann ${PROJECT_BINARY_DIR}/headers/nlohmann SYMBOLIC)
add_library(nlohmann_json::nlohmann_json INTERFACE IMPORTED GLOBAL)
target_include_directories(nlohmann_json::nlohmann_json SYSTEM
                           INTERFACE ${PROJECT_BINARY_DIR}/headers)
