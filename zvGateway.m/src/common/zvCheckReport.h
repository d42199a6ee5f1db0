#ifndef ZV_CHECK_REPORT_H
#define ZV_CHECK_REPORT_H

#include <string>
#include <vector>

#include "zvFailure.h"
#include "zvFinding.h"

/// What was looked at: a place in a file, or something without one.
struct zvCheckPlace {
    /// A place in a file, given by its path.
    zvCheckPlace(const zvString& path, zvTextPosition where = {})
        : name(path), isFile(true), position(where) {}
    /// Something else, as in "HTTP server".
    explicit zvCheckPlace(const char* thing) : name(thing) {}

    zvString name;
    bool isFile = false;
    zvTextPosition position;
};

/// What a check has found, told in the order in which it comes: a line for each thing or, at the end, one
/// JSON document. A fault is told as compilers do, so that editors go to the place: `file:line:column:
/// severity: text [kind]`.
class zvCheckReport {
public:
    /// `isStrict`: warnings count as errors do.
    zvCheckReport(bool asJson, bool isStrict) : m_bJson(asJson), m_bStrict(isStrict) {}

    /// Something that is as it should be.
    void addGood(const zvCheckPlace& place, const zvString& text = {});
    /// Something that was not looked at.
    void addLeftOut(const zvCheckPlace& place, const zvString& reason);
    /// A fault. An event that meets it ends with the exit code.
    void addFault(const zvCheckPlace& place, const zvFinding& finding, zvExitCode exitCode);
    /// The same for an error without a place of its own.
    void addError(const zvCheckPlace& place, std::string_view kind, const zvString& text,
                  zvExitCode exitCode);
    /// A file that could not be read, which is told as the failure that it would be of the whole program; the
    /// check goes on with what follows. Ends the file.
    void addUnreadable(const zvString& name, const zvProgramFailure& failure);
    /// Ends what belongs to a file, or to a folder, with the number of its faults.
    void endFile(const zvString& name, bool isComplete = true);

    /// The number of errors and warnings so far.
    std::ptrdiff_t numFaults() const { return m_inAll.errors + m_inAll.warnings; }

    /// Tells the end. The exit code is the lowest of the errors': that of the step at which an event stops.
    zvExitCode finish();

private:
    struct Counts {
        std::ptrdiff_t errors = 0;
        std::ptrdiff_t warnings = 0;
    };
    struct Item {
        zvCheckPlace place;
        const char* outcome;
        zvString text;
    };
    struct Fault {
        zvCheckPlace place;
        zvFinding finding;
    };
    struct File {
        zvString name;
        Counts counts;
        bool isComplete;
    };

    void addItem(const zvCheckPlace& place, const char* outcome, const zvString& text);
    void count(const zvFinding& finding, zvExitCode exitCode);
    void printJson() const;
    static std::string textOf(const Counts& counts);

    const bool m_bJson;
    const bool m_bStrict;
    std::vector<Item> m_items;
    std::vector<Fault> m_faults;
    std::vector<File> m_files;
    Counts m_inFile;
    Counts m_inAll;
    zvExitCode m_exitCode = zvExitCode::success;
};

#endif
