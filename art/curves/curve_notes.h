// What stands above the points of a curve file: what it is and where its values come from.
#pragma once

#include <string>
#include <vector>

namespace quendal::curves {

// `concentration` is that of the sample in mol/L as German text: "0,6".
std::vector<std::string> strongAcidNotes(const std::string& concentration);
std::vector<std::string> weakAcidNotes(const std::string& concentration);
std::vector<std::string> silverNotes(const std::string& concentration);
std::vector<std::string> strongConductivityNotes(const std::string& concentration);
std::vector<std::string> weakConductivityNotes(const std::string& concentration);
std::vector<std::string> silverConductivityNotes(const std::string& concentration);
std::vector<std::string> exponentNotes(const std::string& concentration);

} // namespace quendal::curves
