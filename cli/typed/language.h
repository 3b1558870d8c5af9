#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "cli/typed/guide.h"
#include "cli/typed/typed.h"

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace veyruna::cli {

/// Which commands and options there are, and what is said of each.
class Language {
 public:
  Language();
  Language(const Language&) = delete;
  Language& operator=(const Language&) = delete;
  ~Language();

  /// Reads arguments into what was typed.
  [[nodiscard]] CLI::App& app() { return *app_; }
  [[nodiscard]] const CLI::App& app() const { return *app_; }
  [[nodiscard]] Typed& typed() { return typed_; }
  [[nodiscard]] const Typed& typed() const { return typed_; }

  [[nodiscard]] Guide guide() const;

 private:
  /// An option with a value, which is kept as it was typed.
  struct Value {
    const char* name;
    const char* type;
    std::string& typed;
    std::string description;
    Offered offered = {};
  };
  /// What is said of a command beside its options.
  struct Saying {
    std::string note;
    std::string example;  ///< without the program's name
  };

  CLI::Option* add(CLI::App& command, Value value);
  void addMoment();
  void addPlace();
  void addOutput();
  CLI::App* addCommand(std::string_view name, std::string_view summary);
  /// A command about one moment and place.
  CLI::App* addDocument(std::string_view name, std::string_view summary,
                        const std::string& exampleEnd = "");
  /// A command over a stretch of time.
  CLI::App* addStretchCommand(std::string_view name, std::string_view summary,
                              const std::string& exampleEnd);
  void addTable(const std::string& name, const std::string& summary, const std::string& example);
  void addEvents();
  void addSearch();
  void addBatch();
  void addPage();
  void addCalendar();
  void addSchema();
  void addHelp();
  /// Says it, below the options of the command; `pointer` is of its help alone.
  void say(CLI::App& command, const std::string& pointer, Saying saying);
  [[nodiscard]] OptionGuide guideOf(const CLI::Option& option) const;
  [[nodiscard]] CommandGuide guideOf(const CLI::App& command) const;

  Typed typed_;
  std::unique_ptr<CLI::App> app_;
  std::map<const CLI::Option*, Offered> offered_;
  std::map<const CLI::App*, Saying> sayings_;
};

}  // namespace veyruna::cli
