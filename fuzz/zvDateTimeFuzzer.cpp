// Input: a date's value, pattern and separators, one per line. Parses, formats, and converts to seconds and
// back.
#include "zvDateTime.h"
#include "zvFuzzSupport.h"

using zvFuzz::require;

namespace {

constexpr char usualPattern[] = "DD/MM/YYYY::hh-mm-ss";

bool sameNumbers(const zvDateTime& a, const zvDateTime& b) {
    return a.getYear() == b.getYear() && a.getMonth() == b.getMonth() && a.getDay() == b.getDay() &&
           a.getHour() == b.getHour() && a.getMinute() == b.getMinute() && a.getSecond() == b.getSecond();
}

// setDate() reads at most four digits per field.
bool canBeRead(const zvDateTime& date) {
    for (const short number : {date.getYear(), date.getMonth(), date.getDay(), date.getHour(),
                               date.getMinute(), date.getSecond()}) {
        if (number < 0 || number > 9999) {
            return false;
        }
    }
    return true;
}

void checkSeconds(const zvDateTime& date) {
    const zvInt64 seconds = date.getDateTimeInSeconds();
    require(seconds >= -1, "seconds are counted from 1970");
    if (seconds >= 0) {
        const zvDateTime same(seconds);
        require(same == date && same >= date && !(same < date), "seconds come back");
    }
}

}  // namespace

void zvFuzzOne(std::string_view input) {
    const std::vector<std::string> lines = zvFuzz::linesOf(input);
    const auto line = [&lines](std::size_t i) {
        return i < lines.size() ? zvFuzz::textOf(lines[i]) : zvString();
    };
    zvDateTime date;
    date.setDate(line(0), usualPattern);
    date.setDate(line(0), line(1));
    checkSeconds(date);
    static_cast<void>(date.toString());
    static_cast<void>(date.getDateTime(line(1), line(2), line(3)));
    if (canBeRead(date)) {
        zvDateTime again;
        again.setDate(date.getDateTime(usualPattern, "/", "-"), usualPattern);
        require(sameNumbers(date, again), "what was written is read");
    }
}
