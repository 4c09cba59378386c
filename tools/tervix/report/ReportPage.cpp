#include "tools/tervix/report/ReportPage.h"

#include "tools/tervix/report/PageTemplate.h"

namespace tervix::tool {
namespace {

constexpr std::string_view kTitle = "@TITLE@";
constexpr std::string_view kData = "@DATA@";
constexpr std::size_t kTitleAt = kPageTemplate.find(kTitle);
constexpr std::size_t kDataAt = kPageTemplate.find(kData);
static_assert(kTitleAt < kDataAt && kDataAt != std::string_view::npos);

} // namespace

std::string_view pageBeginning() {
  return kPageTemplate.substr(0, kPageTemplate.find("<head>"));
}

std::string pageOf(const Json& data, const std::string& title) {
  std::string page(kPageTemplate.substr(0, kTitleAt));
  page += inHtml(title);
  constexpr std::size_t kAfterTitle = kTitleAt + kTitle.size();
  page += kPageTemplate.substr(kAfterTitle, kDataAt - kAfterTitle);
  page += inScript(data);
  page += kPageTemplate.substr(kDataAt + kData.size());
  return page;
}

std::string inHtml(std::string_view text) {
  std::string html;
  for (const char c : text)
    switch (c) {
    case '&':
      html += "&amp;";
      break;
    case '<':
      html += "&lt;";
      break;
    case '>':
      html += "&gt;";
      break;
    default:
      html += c;
    }
  return html;
}

std::string inScript(const Json& json) {
  std::string script;
  // Within JSON these stand in texts only.
  for (const char c : json.dump(-1, ' ', true, Json::error_handler_t::replace))
    if (c == '<' || c == '>' || c == '&')
      script += c == '<' ? "\\u003c" : c == '>' ? "\\u003e" : "\\u0026";
    else
      script += c;
  return script;
}

} // namespace tervix::tool
