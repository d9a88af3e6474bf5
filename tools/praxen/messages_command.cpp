// "praxen messages": prints a message list the way a compiler would.
#include "tools/praxen/messages_command.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "praxen/factory/read_document.h"
#include "praxen/model/messages/message_bucket.h"
#include "tools/praxen/documents.h"
#include "tools/praxen/json.h"
#include "tools/praxen/terminal.h"

namespace praxen::detail {

namespace {

struct MessagesOptions {
  std::string file;
  bool sort = false, json = false;
};

// The kinds in the order of --sort.
enum class Kind : uint8_t { Error, Warning, Info, Find };

struct Line {
  Kind kind;
  int32_t number;
  Text message;
  Ref<PosInfo> place;
};

Line LineOf(const IMsg& message) {
  if (const auto* const error = dynamic_cast<const ErrorMsg*>(&message)) {
    return {Kind::Error, error->ErrorNo, error->Message, error->PosInfo};
  }
  if (const auto* const warning = dynamic_cast<const WarningMsg*>(&message)) {
    return {Kind::Warning, warning->WarningNo, warning->Message, warning->PosInfo};
  }
  if (const auto* const info = dynamic_cast<const InfoMsg*>(&message)) {
    return {Kind::Info, 0, info->Message, info->PosInfo};
  }
  const auto& find = dynamic_cast<const FindMsg&>(message);
  return {Kind::Find, 0, find.Message, find.PosInfo};
}

std::vector<Line> LinesOf(const MessageBucket& bucket) {
  std::vector<Line> lines;
  for (const IMsg& message : bucket) lines.push_back(LineOf(message));
  return lines;
}

struct Appearance {
  std::string_view name;
  std::string_view Colours::*colour;
};

const Appearance& AppearanceOf(Kind kind) {
  static constexpr std::array<Appearance, 4> appearances{{{"error", &Colours::red},
                                                          {"warning", &Colours::yellow},
                                                          {"info", &Colours::cyan},
                                                          {"find", &Colours::dim}}};
  return appearances.at(static_cast<size_t>(kind));
}

// The unit and its tab, or what else the message points at; then row and column where it has them.
std::string PlaceText(const PosInfo& place) {
  std::string text;
  for (const Text& name : {place.POUName, place.FOUName, place.ElementName}) {
    if (text.empty()) text = Printable(name);
  }
  if (!place.TabName.empty()) text.append(text.empty() ? "" : "/").append(Printable(place.TabName));
  if (place.Row != 0 || place.Col != 0) {
    text += ':' + std::to_string(place.Row) + ':' + std::to_string(place.Col);
  }
  return text;
}

void PrintLine(const Line& line, const Colours& colours, std::ostream& stream) {
  const std::string place = line.place ? PlaceText(*line.place) : std::string();
  const Appearance& appearance = AppearanceOf(line.kind);
  if (!place.empty()) stream << colours.bold << place << ": " << colours.reset;
  stream << colours.*appearance.colour << appearance.name;
  if (line.number != 0) stream << ' ' << line.number;
  stream << ": " << colours.reset << Printable(line.message) << '\n';
}

std::string Counted(int64_t count, const std::string& noun) {
  return (count == 0 ? "no" : std::to_string(count)) + ' ' + noun + (count == 1 ? "" : "s");
}

// What the counters of the list say where they differ from the messages in it.
std::string Disagreement(const MessageBucket& bucket, int64_t errors, int64_t warnings) {
  std::string counted;
  if (bucket.NoOfErrors != errors) counted = Counted(bucket.NoOfErrors, "error");
  if (bucket.NoOfWarnings != warnings) {
    counted.append(counted.empty() ? "" : ", ").append(Counted(bucket.NoOfWarnings, "warning"));
  }
  return counted.empty() ? "" : "; the list itself counts " + counted;
}

nlohmann::ordered_json LineJson(const Line& line) {
  nlohmann::ordered_json json{{"kind", AppearanceOf(line.kind).name}};
  if (line.number != 0) json["number"] = line.number;
  json["message"] = ToUtf8(line.message);
  if (line.place) json["place"] = ToJson(*line.place, JsonContent::Changed);
  return json;
}

// Returns whether there are no errors.
bool PrintMessages(const MessageBucket& bucket, const MessagesOptions& options,
                   std::ostream& stream) {
  std::vector<Line> lines = LinesOf(bucket);
  if (options.sort) std::ranges::stable_sort(lines, {}, &Line::kind);
  const int64_t errors = std::ranges::count(lines, Kind::Error, &Line::kind);
  const int64_t warnings = std::ranges::count(lines, Kind::Warning, &Line::kind);
  if (options.json) {
    nlohmann::ordered_json json{{"NoOfErrors", bucket.NoOfErrors},
                                {"NoOfWarnings", bucket.NoOfWarnings},
                                {"messages", nlohmann::ordered_json::array()}};
    for (const Line& line : lines) json["messages"].push_back(LineJson(line));
    stream << JsonLine(json);
  } else {
    const Colours colours(stdout);
    for (const Line& line : lines) PrintLine(line, colours, stream);
    stream << colours.bold << Counted(errors, "error") << ", " << Counted(warnings, "warning")
           << Disagreement(bucket, errors, warnings) << colours.reset << '\n';
  }
  return errors == 0 && bucket.NoOfErrors <= 0;
}

}  // namespace

void AddMessagesCommand(CLI::App& app, int& exitCode) {
  CLI::App* const command =
      app.add_subcommand("messages", "Print a message list the way a compiler would");
  const auto options = std::make_shared<MessagesOptions>();
  command->add_option("FILE", options->file, "A message list; - is standard input")
      ->check(FileName())
      ->required();
  AddSchema(*command);
  command->add_flag("--sort", options->sort, "Errors first, then warnings, then the others");
  command->add_flag("--json", options->json, "The list as one line of JSON");
  command->footer(
      "Exit code: 0 when there are no errors among the messages, 1 when there are or the list "
      "cannot\n"
      "be read, 2 for wrong use.\n\n"
      "Examples:\n"
      "  praxen messages --sort compiled.xml\n"
      "  praxen messages --json - < compiled.xml");
  command->callback([&exitCode, options] {
    exitCode = ForEachDocument({options->file}, {[&](const Document& document, Output& output) {
                                 Losses losses;
                                 const auto bucket =
                                     ReadDocument<MessageBucket>(document.text, &losses);
                                 WarnOfLosses(document, losses, output);
                                 return PrintMessages(*bucket, *options, output.out);
                               }});
  });
}

}  // namespace praxen::detail
