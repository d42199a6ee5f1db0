#include "zvDateTime.h"

#include "zvDatePattern.h"
#include "zvLogSource.h"
#include "zvPlatform.h"

namespace {

constexpr zvLogSource logger("zvCommonUtils.m/src/zvDateTime");

constexpr int fieldCount = 6;
constexpr int longestFieldText = 5;

bool isSeparator(wchar16 unit) { return unit == u':' || unit == u'/' || unit == u'-'; }

// Reads one number at `valueAt` and advances both positions past the field and its separator. The second ":"
// of "::" is skipped here in the value, but by the caller in the format.
int extractField(const zvString& value, int& valueAt, const zvString& format, int& formatAt) {
    const int begin = valueAt;
    while (valueAt < value.size() && valueAt - begin < longestFieldText) {
        if (isSeparator(value[valueAt++])) {
            break;
        }
    }
    const wchar16 last = value[valueAt - 1];
    int length = valueAt - begin;
    if (valueAt < value.size()) {
        --length;  // the separator, or the fifth digit
    }
    if (last == u':') {
        ++valueAt;
    }
    while (formatAt < format.size() && !isSeparator(format[formatAt++])) {
    }
    return zvString::convertUnicodeToInt(value.substr(begin, length));
}

}  // namespace

struct zvDateTime::Field {
    wchar16 letter;
    int width;  // of the field and its separator in a pattern
    short zvDateTime::*number;
};

const zvDateTime::Field* zvDateTime::fieldOf(wchar16 letter) {
    static constexpr Field fields[fieldCount] = {
        {u'D', 3, &zvDateTime::m_day},  {u'M', 3, &zvDateTime::m_month},  {u'Y', 5, &zvDateTime::m_year},
        {u'h', 3, &zvDateTime::m_hour}, {u'm', 3, &zvDateTime::m_minute}, {u's', 3, &zvDateTime::m_second},
    };
    for (const Field& field : fields) {
        if (field.letter == letter) {
            return &field;
        }
    }
    return nullptr;
}

zvDateTime::zvDateTime() = default;

zvDateTime::zvDateTime(const zvString& format) { setFormat(format); }

zvDateTime::zvDateTime(short year, short month, short day, short hour, short minute, short second)
    : m_year(year), m_month(month), m_day(day), m_hour(hour), m_minute(minute), m_second(second) {}

zvDateTime::zvDateTime(zvInt64 seconds) : zvDateTime() { setDateTimeInSeconds(seconds); }

zvDateTime::zvDateTime(const zvDateTime& other) : zvCoreObject(other) { copy(other); }

zvDateTime::~zvDateTime() = default;

zvDateTime& zvDateTime::operator=(const zvDateTime& other) {
    if (this != &other) {
        copy(other);
    }
    return *this;
}

void zvDateTime::copy(const zvDateTime& other) {
    m_year = other.m_year;
    m_month = other.m_month;
    m_day = other.m_day;
    m_hour = other.m_hour;
    m_minute = other.m_minute;
    m_second = other.m_second;
    if (other.m_strFormat.data() == nullptr) {
        m_strFormat.clear();
    } else {
        setFormat(other.m_strFormat);
    }
}

// An empty pattern that was set has a buffer, the default pattern has none.
void zvDateTime::setFormat(const zvString& format) {
    m_strFormat = format.empty() ? zvString(zvDefaultDatePattern) : format;
    if (format.empty()) {
        m_strFormat.reset();
    }
}

zvString zvDateTime::getDateFormat() const {
    return m_strFormat.data() == nullptr ? zvString(zvDefaultDatePattern) : m_strFormat;
}

bool zvDateTime::isInitialized() const {
    return (m_year | m_month | m_day | m_hour | m_minute | m_second) != 0;
}

void zvDateTime::setDate(const zvString& value, const zvString& format) {
    if (value.empty() || format.empty()) {
        logger.error("Date cannot be extracted from the input string. The input string is \"", value,
                     "\" and the format is \"", format, "\"");
        return;
    }
    setFormat(format);
    int valueAt = 0;
    int formatAt = 0;
    while (valueAt < value.size() && formatAt < format.size()) {
        const Field* const field = fieldOf(format[formatAt]);
        if (field == nullptr) {
            ++formatAt;
        } else {
            this->*field->number = static_cast<short>(extractField(value, valueAt, format, formatAt));
        }
    }
}

zvString zvDateTime::getDateTime(const zvString& format, const zvString& dateSeparator,
                                 const zvString& timeSeparator) const {
    int numbers[fieldCount] = {};
    int count = 0;
    bool hasDate = false;
    bool hasTime = false;
    for (int at = 0; at < format.size();) {
        const Field* const field = fieldOf(format[at]);
        if (field == nullptr) {
            ++at;
            continue;
        }
        if (count < fieldCount) {
            numbers[count++] = this->*field->number;
        }
        hasDate = hasDate || field->letter == u'D';
        hasTime = hasTime || field->letter == u'h';
        at += field->width;
    }
    zvTextBuilder text;
    const auto appendThree = [&text](const int* three, const zvString& separator) {
        text.append(three[0]).append(separator).append(three[1]).append(separator).append(three[2]);
    };
    if (hasDate || hasTime) {
        appendThree(numbers, hasDate ? dateSeparator : timeSeparator);
    }
    if (hasDate && hasTime) {
        text.append("::");
        appendThree(numbers + 3, timeSeparator);
    }
    return text.toString();
}

zvString zvDateTime::getDate(const zvString& format, const zvString& separator) const {
    return getDateTime(format, separator, "-");
}

zvString zvDateTime::getTime(const zvString& format, const zvString& separator) const {
    return getDateTime(format, "/", separator);
}

zvString zvDateTime::toString() const {
    if (!isInitialized()) {
        return "zvDateTime object not initialized";
    }
    return zvTextBuilder::concat("Day: |", getDate("DD/MM/YYYY", "/"), "| Time: |", getTime("hh-mm-ss", "-"),
                                 "|");
}

zvInt64 zvDateTime::getDateTimeInSeconds() const {
    std::tm local{};
    local.tm_sec = m_second;
    local.tm_min = m_minute;
    local.tm_hour = m_hour;
    local.tm_mday = m_day;
    local.tm_mon = m_month - 1;
    local.tm_year = m_year - 1900;
    return zvPlatform::fromLocalTime(local);
}

void zvDateTime::setDateTimeInSeconds(zvInt64 seconds) {
    std::tm local{};
    if (!zvPlatform::toLocalTime(seconds, local)) {
        return;
    }
    m_year = static_cast<short>(local.tm_year + 1900);
    m_month = static_cast<short>(local.tm_mon + 1);
    m_day = static_cast<short>(local.tm_mday);
    m_hour = static_cast<short>(local.tm_hour);
    m_minute = static_cast<short>(local.tm_min);
    m_second = static_cast<short>(local.tm_sec);
}

void zvDateTime::setCurrentDateTime() { setDateTimeInSeconds(zvPlatform::currentTime()); }

bool zvDateTime::operator==(const zvDateTime& other) const {
    return getDateTimeInSeconds() == other.getDateTimeInSeconds();
}

bool zvDateTime::operator!=(const zvDateTime& other) const { return !(*this == other); }

bool zvDateTime::operator<(const zvDateTime& other) const {
    return getDateTimeInSeconds() < other.getDateTimeInSeconds();
}

bool zvDateTime::operator<=(const zvDateTime& other) const { return !(other < *this); }
bool zvDateTime::operator>(const zvDateTime& other) const { return other < *this; }
bool zvDateTime::operator>=(const zvDateTime& other) const { return !(*this < other); }
