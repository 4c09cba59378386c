#include "DesignFile.h"

#include "Document.h"
#include "MistakeRecord.h"

namespace tervix::formats {

std::optional<Design> readDesign(const std::string& designFile) noexcept {
  return rememberingMistakes(designFile, [&] {
    constexpr std::string_view section = "Design";
    const Document document(designFile);
    return Design{document.list(section, "Schematics", "schematic names"),
                  document.text(section, "Root")};
  });
}

} // namespace tervix::formats
