#ifndef ZV_MAPPING_REPORT_H
#define ZV_MAPPING_REPORT_H

#include <string>
#include <utility>
#include <vector>

#include "zvLifecycleWay.h"
#include "zvMappingAccount.h"

/// What became of an object, and why, as facts for people: a name and a text.
class zvMappingReport {
public:
    using Facts = std::vector<std::pair<std::string, std::string>>;

    /// The trial must live longer.
    explicit zvMappingReport(const zvMappingTrial& trial) : m_account(trial) {}

    /// The candidates in their order, each with what came of its rule and of every part of it.
    Facts candidates() const;
    /// The object that was taken, its attributes in the other system and what has no place there; with
    /// `explains` also where each value comes from, and which attributes have none. Nothing without an
    /// object.
    Facts object(bool explains) const;

    static void print(const Facts& facts);

    /// As in "Part -> ReleasedPart".
    static std::string typesOf(const zvCfgObject& object);
    /// Prints a way that exists.
    static void print(const zvLifecycleWay& way);

private:
    void addUnmapped(Facts& facts) const;

    const zvMappingAccount m_account;
};

#endif
