#ifndef ZV_DATE_TIME_H
#define ZV_DATE_TIME_H

#include "zvCoreObject.h"
#include "zvString.h"

/// A date and a time of day in local time, as six numbers that are not validated, and a pattern.
///
/// A pattern consists of the fields "DD", "MM", "YYYY", "hh", "mm" and "ss", separated by "/", "-" or ":",
/// with "::" between date and time. Seconds are counted from 1970-01-01 00:00:00 UTC.
class ZV_EXPORT zvDateTime : public zvCoreObject {
public:
    /// All numbers 0, with the pattern "DD/MM/YYYY::hh-mm-ss".
    zvDateTime();
    zvDateTime(const zvString& format);
    zvDateTime(short year, short month, short day, short hour, short minute, short second);
    zvDateTime(zvInt64 seconds);
    zvDateTime(const zvDateTime& other);
    ~zvDateTime() override;

    zvDateTime& operator=(const zvDateTime& other);

    short getYear() const { return m_year; }
    short getMonth() const { return m_month; }
    short getDay() const { return m_day; }
    short getHour() const { return m_hour; }
    short getMinute() const { return m_minute; }
    short getSecond() const { return m_second; }
    void setYear(short year) { m_year = year; }
    void setMonth(short month) { m_month = month; }
    void setDay(short day) { m_day = day; }
    void setHour(short hour) { m_hour = hour; }
    void setMinute(short minute) { m_minute = minute; }
    void setSecond(short second) { m_second = second; }
    zvString getDateFormat() const;
    /// Whether any of the six numbers is not 0.
    bool isInitialized() const;

    /// Parses `value` by the pattern `format`, which becomes this object's pattern. Fields missing from
    /// either keep their numbers; an empty `value` or `format` is logged and changes nothing.
    void setDate(const zvString& value, const zvString& format);
    /// Formats the value by the pattern `format`, without leading zeros. A pattern without "D" gives no date,
    /// one without "h" no time.
    zvString getDateTime(const zvString& format, const zvString& dateSeparator,
                         const zvString& timeSeparator) const;
    zvString getDate(const zvString& format, const zvString& separator) const;
    zvString getTime(const zvString& format, const zvString& separator) const;
    /// For example "Day: |21/5/2011| Time: |11-12-22|".
    zvString toString() const;

    /// Seconds since 1970-01-01 00:00:00 UTC; -1 before 1970 and after the year 3000.
    zvInt64 getDateTimeInSeconds() const;
    /// Sets all six numbers from seconds since 1970-01-01 00:00:00 UTC; no effect before 1970 and after 3000.
    void setDateTimeInSeconds(zvInt64 seconds);
    void setCurrentDateTime();

    /// @name Comparisons
    /// By getDateTimeInSeconds(): 31 April equals 1 May.
    /// @{
    bool operator==(const zvDateTime& other) const;
    bool operator!=(const zvDateTime& other) const;
    bool operator<(const zvDateTime& other) const;
    bool operator<=(const zvDateTime& other) const;
    bool operator>(const zvDateTime& other) const;
    bool operator>=(const zvDateTime& other) const;
    /// @}

protected:
    void copy(const zvDateTime& other);

private:
    struct Field;
    static const Field* fieldOf(wchar16 letter);
    void setFormat(const zvString& format);

    short m_year = 0;
    short m_month = 0;
    short m_day = 0;
    short m_hour = 0;
    short m_minute = 0;
    short m_second = 0;
    zvString m_strFormat;  // no buffer for the default pattern, which spares most dates an allocation
};

#endif
