#include "staff/EmployeesCfg.h"

#include "core/Numbers.h"

#include <array>

namespace zorvane {

CandidateLine readCandidateLine(const std::string& line,
                                const std::function<void(const std::string&)>& complain) {
    const std::string text = line.substr(0, line.find('#'));
    std::array<std::string, 4> fields;
    std::size_t field = 0;
    for (const char c : text) {
        if (c == '|') {
            ++field;
        } else if (field < fields.size()) {
            fields[field] += c;
        } else {
            complain("Error loading employee file, there are more fields for '" + fields[0] +
                     "' than there should be, perhaps employees.cfg is for a newer version of "
                     "zorvane?");
        }
    }
    CandidateLine c;
    c.name = fields[0];
    c.exp = floorInt16(leadingNumber(fields[1]));
    c.rel = floorInt16(leadingNumber(fields[2]));
    c.amb = floorInt16(leadingNumber(fields[3]));
    return c;
}

} // namespace zorvane
