// replay FOLDER...: tries every file of the folders once, without a fuzzer.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "fuzz/target.h"

int main(int argc, char** argv) {
  int tried = 0;
  for (int i = 1; i < argc; ++i) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
      if (entry.is_regular_file()) {
        files.push_back(entry.path());
      }
    }
    std::ranges::sort(files);
    for (const std::filesystem::path& path : files) {
      std::ifstream file(path, std::ios::binary);
      if (!file) {
        std::fprintf(stderr, "cannot read %s\n", path.c_str());
        return 1;
      }
      std::printf("%s\n", path.filename().c_str());
      std::fflush(stdout);
      std::ostringstream content;
      content << file.rdbuf();
      const std::string bytes = content.str();
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
      ++tried;
    }
  }
  std::printf("%d files tried\n", tried);
  return tried > 0 ? 0 : 1;
}
