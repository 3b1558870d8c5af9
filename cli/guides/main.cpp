// What is told of the command's options, for people and shells, is made of its own language:
//
//     veyruna-guides bash|zsh|fish|man|html
#include <array>
#include <cstdio>
#include <string>
#include <string_view>

#include "cli/guides/completion.h"
#include "cli/guides/man_page.h"
#include "cli/guides/option_table.h"
#include "cli/typed/language.h"

namespace {

using namespace veyruna::cli;

struct Teller {
  std::string_view word;
  std::string (*tell)(const Guide& guide);
};
constexpr std::array tellers = {
    Teller{"bash", bashCompletion}, Teller{"zsh", zshCompletion}, Teller{"fish", fishCompletion},
    Teller{"man", [](const Guide& guide) { return manPage(guide, VEYRUNA_VERSION); }},
    Teller{"html", optionTable}};

}  // namespace

int main(int argc, char** argv) {
  for (const Teller& teller : tellers) {
    if (argc == 2 && teller.word == argv[1]) {
      std::fputs(teller.tell(Language().guide()).c_str(), stdout);
      return 0;
    }
  }
  std::fputs("veyruna-guides takes one of bash, zsh, fish, man and html\n", stderr);
  return 2;
}
