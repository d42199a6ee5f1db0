#ifndef ZV_CLASS_ARCHIVE_H
#define ZV_CLASS_ARCHIVE_H

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

/// The file of classes, ready for use, with which a Java machine starts sooner. It is in the user's cache,
/// one for each installation of Java and client and each set of options.
///
/// Classes are code: an archive counts if it and its folder belong to this process's user and nobody else has
/// a right to them. Java itself looks whether it fits, and goes without it if not; but it dies of one that is
/// cut off, so the name has a checksum of the content.
class zvClassArchive {
public:
    /// The archive for the machine that would start now with these options. Where there is no Java or no
    /// cache, there is none and none can be made.
    explicit zvClassArchive(std::vector<std::string> javaOptions);

    /// The options that make a machine use the archive; none if there is no archive that may be used.
    std::vector<std::string> options() const;
    /// Whether it has to be made. An archive, and the knowledge that this Java makes none, count for a month.
    bool isMissing() const { return m_state == State::missing; }
    /// The archive that was found or made; empty if there is none.
    const std::filesystem::path& file() const { return m_file; }

    /// Makes it, in a process of its own, which may fail or be killed without harm. Nothing if another
    /// process is making it. Returns the reason of a failure, or "".
    std::string make();

private:
    enum class State { impossible, missing, unmakable, usable };

    State look(const std::filesystem::path& file) const;
    std::string makeLocked();
    std::error_code keep(const std::filesystem::path& made);
    void tidy() const;

    std::vector<std::string> m_javaOptions;
    std::filesystem::path m_folder;
    std::string m_strPrefix;  // of the file's name; what follows is the checksum
    std::filesystem::path m_file;
    State m_state = State::impossible;
};

#endif
