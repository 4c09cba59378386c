#include "tools/tervix/changes/RecordText.h"

#include <utility>

#include <nlohmann/json.hpp>

namespace tervix::tool {
namespace {

using Json = nlohmann::ordered_json;

constexpr int kVersion = 1;
constexpr const char* kHexDigits = "0123456789ABCDEF";

Json spelt(const std::string& bytes) {
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80 && c != '%')
      text += c;
    else
      text.append("%").append(1, kHexDigits[byte / 16]).append(1, kHexDigits[byte % 16]);
  }
  return text;
}

std::string read(const Json& json) {
  const auto& text = json.get_ref<const std::string&>();
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i)
    if (text[i] == '%') {
      bytes += static_cast<char>(std::stoi(text.substr(i + 1, 2), nullptr, 16));
      i += 2;
    } else {
      bytes += text[i];
    }
  return bytes;
}

// An object, written entry by entry: the record of a large project holds all its files, which fit
// in memory as text more often than as values.
class ObjectText {
public:
  void add(const char* key, const Json& value) { next(key) += value.dump(); }

  template <class Items, class JsonOf>
  void addList(const char* key, const Items& items, const JsonOf& jsonOf) {
    std::string& text = next(key) += '[';
    const char* separator = "\n";
    for (const auto& item : items) {
      text.append(separator).append(jsonOf(item).dump());
      separator = ",\n";
    }
    text += "\n]";
  }

  void begin(const char* key) {
    next(key) += '{';
    separator_ = "\n";
  }

  void end() {
    text_ += "\n}";
    separator_ = ",\n";
  }

  std::string take() {
    end();
    return std::move(text_ += '\n');
  }

private:
  std::string& next(const char* key) {
    text_.append(separator_).append("\"").append(key).append("\": ");
    separator_ = ",\n";
    return text_;
  }

  std::string text_ = "{";
  const char* separator_ = "\n";
};

Json jsonOfMade(const ChangePlan::Made& file) {
  return {{"path", spelt(file.path)},
          {"source", spelt(file.source)},
          {"content", spelt(file.content)},
          {"copy", file.isCopy}};
}

Json jsonOfDeleted(const std::pair<std::string, std::string>& names) {
  return {{"schematic", spelt(names.first)}, {"profile", spelt(names.second)}};
}

void add(ObjectText& text, const ChangePlan& plan) {
  text.begin("plan");
  text.add("change", spelt(plan.title));
  text.addList("request", plan.request, spelt);
  text.add("project", spelt(plan.projectFile));
  text.add("formerProject", spelt(plan.formerProjectFile));
  text.addList("madeFolders", plan.madeFolders, spelt);
  text.addList("made", plan.made, jsonOfMade);
  text.addList("removed", plan.removed, spelt);
  text.addList("removedFolders", plan.removedFolders, spelt);
  text.addList("deleted", plan.deleted, jsonOfDeleted);
  text.end();
}

std::vector<std::string> readList(const Json& json) {
  std::vector<std::string> texts;
  for (const Json& element : json)
    texts.push_back(read(element));
  return texts;
}

ChangePlan planIn(const Json& json) {
  ChangePlan plan;
  plan.title = read(json.at("change"));
  plan.request = readList(json.at("request"));
  plan.projectFile = read(json.at("project"));
  plan.formerProjectFile = read(json.at("formerProject"));
  plan.madeFolders = readList(json.at("madeFolders"));
  for (const Json& made : json.at("made"))
    plan.made.push_back({read(made.at("path")), read(made.at("source")), read(made.at("content")),
                         made.at("copy").get<bool>()});
  plan.removed = readList(json.at("removed"));
  plan.removedFolders = readList(json.at("removedFolders"));
  for (const Json& deleted : json.at("deleted"))
    plan.deleted.emplace_back(read(deleted.at("schematic")), read(deleted.at("profile")));
  return plan;
}

ChangeRecord recordOf(const Json& json) {
  ChangeRecord record;
  record.plan = planIn(json.at("plan"));
  for (const Json& file : json.at("rewritten")) {
    record.plan.rewritten.push_back({read(file.at("path")), read(file.at("content"))});
    record.former.push_back({read(file.at("former")), read(file.at("staged"))});
  }
  record.newFolders = readList(json.at("newFolders"));
  record.kept = readList(json.at("kept"));
  record.process = json.at("process").get<long>();
  record.isComplete = json.at("complete").get<bool>();
  return record;
}

} // namespace

std::string textOf(const ChangeRecord& record) {
  ObjectText text;
  text.add("version", kVersion);
  text.add("complete", record.isComplete);
  text.add("process", record.process);
  add(text, record.plan);
  text.addList("rewritten", record.former, [&](const ChangeRecord::Former& former) -> Json {
    const auto index = static_cast<std::size_t>(&former - record.former.data());
    const ChangePlan::Rewritten& rewritten = record.plan.rewritten[index];
    return {{"path", spelt(rewritten.path)},
            {"former", spelt(former.content)},
            {"content", spelt(rewritten.content)},
            {"staged", spelt(former.staged)}};
  });
  text.addList("newFolders", record.newFolders, spelt);
  text.addList("kept", record.kept, spelt);
  return text.take();
}

std::optional<ChangeRecord> recordIn(const std::string& text) {
  try {
    const Json json = Json::parse(text);
    if (json.at("version") == kVersion)
      return recordOf(json);
  } catch (const std::exception&) {
    return std::nullopt;
  }
  return std::nullopt;
}

} // namespace tervix::tool
