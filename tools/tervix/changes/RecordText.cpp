#include "tools/tervix/changes/RecordText.h"

#include <nlohmann/json.hpp>

namespace tervix::tool {
namespace {

using Json = nlohmann::ordered_json;

constexpr int kVersion = 1;
constexpr const char* kHexDigits = "0123456789ABCDEF";

std::string spelt(const std::string& bytes) {
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

Json listOf(const std::vector<std::string>& texts) {
  Json list = Json::array();
  for (const std::string& text : texts)
    list.push_back(spelt(text));
  return list;
}

std::vector<std::string> readList(const Json& json) {
  std::vector<std::string> texts;
  for (const Json& element : json)
    texts.push_back(read(element));
  return texts;
}

Json jsonOf(const ChangePlan& plan) {
  Json made = Json::array();
  for (const ChangePlan::Made& file : plan.made)
    made.push_back({{"path", spelt(file.path)},
                    {"source", spelt(file.source)},
                    {"content", spelt(file.content)},
                    {"copy", file.isCopy}});
  Json deleted = Json::array();
  for (const auto& [schematic, profile] : plan.deleted)
    deleted.push_back({{"schematic", spelt(schematic)}, {"profile", spelt(profile)}});
  return {{"change", spelt(plan.title)},
          {"request", listOf(plan.request)},
          {"project", spelt(plan.projectFile)},
          {"formerProject", spelt(plan.formerProjectFile)},
          {"madeFolders", listOf(plan.madeFolders)},
          {"made", made},
          {"removed", listOf(plan.removed)},
          {"removedFolders", listOf(plan.removedFolders)},
          {"deleted", deleted}};
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
  Json rewritten = Json::array();
  for (std::size_t i = 0; i < record.former.size(); ++i)
    rewritten.push_back({{"path", spelt(record.plan.rewritten[i].path)},
                         {"former", spelt(record.former[i].content)},
                         {"content", spelt(record.plan.rewritten[i].content)},
                         {"staged", spelt(record.former[i].staged)}});
  const Json json = {{"version", kVersion},        {"complete", record.isComplete},
                     {"process", record.process},  {"plan", jsonOf(record.plan)},
                     {"rewritten", rewritten},     {"newFolders", listOf(record.newFolders)},
                     {"kept", listOf(record.kept)}};
  return json.dump(2) + "\n";
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
