#include "zvFileAppenders.h"

#include <log4cxx/helpers/bytebuffer.h>
#include <log4cxx/helpers/class.h>
#include <log4cxx/helpers/loglog.h>
#include <log4cxx/helpers/outputstream.h>
#include <log4cxx/helpers/pool.h>
#include <log4cxx/rolling/rollingfileappender.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <memory>
#include <new>
#include <string>
#include <system_error>
#include <utility>

#include "zvLogPath.h"

using log4cxx::LogString;
using log4cxx::helpers::ByteBuffer;
using log4cxx::helpers::Class;
using log4cxx::helpers::LogLog;
using log4cxx::helpers::OutputStream;
using log4cxx::helpers::OutputStreamPtr;
using log4cxx::helpers::Pool;
using log4cxx::helpers::WriterPtr;

namespace {

class Silence {
public:
    Silence() { LogLog::setQuietMode(true); }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;
    ~Silence() { LogLog::setQuietMode(false); }
};

// Passes on at once what was written since the last flush, which is a line: the system appends it as a whole,
// whoever else appends at the same time. log4cxx writes long lines in pieces.
class WholeLines : public OutputStream {
public:
    explicit WholeLines(OutputStreamPtr file) : m_pFile(std::move(file)) {}

    void write(ByteBuffer& bytes, Pool&) override {
        m_line.append(bytes.current(), bytes.remaining());
        bytes.position(bytes.limit());
    }

    void flush(Pool& pool) override {
        ByteBuffer bytes(m_line.data(), m_line.size());
        m_pFile->write(bytes, pool);
        m_line.clear();
    }

    void close(Pool& pool) override {
        flush(pool);
        m_pFile->close(pool);
    }

    /// Forgets what was not passed on.
    void drop() { m_line.clear(); }

private:
    const OutputStreamPtr m_pFile;
    std::string m_line;
};

template <class Appender>
class SilentAppender : public Appender {
public:
    void activateOptions(Pool& pool) override {
        {
            const Silence silence;
            Appender::activateOptions(pool);
        }
        if (this->getWriter() == nullptr && zvFileAppenders::openingError(*this).empty()) {
            // Something else is wrong, which log4cxx can tell.
            Appender::activateOptions(pool);
        }
        this->setImmediateFlush(true);
    }

    void append(const log4cxx::spi::LoggingEventPtr& event, Pool& pool) override {
        if (this->getWriter() == nullptr) {
            return;
        }
        try {
            Appender::append(event, pool);
        } catch (...) {
            // Or a line that was cut off would stand before the next one.
            m_pLines->drop();
            throw;
        }
    }

protected:
    WriterPtr createWriter(OutputStreamPtr& file) override {
        m_pLines = std::make_shared<WholeLines>(file);
        OutputStreamPtr lines = m_pLines;
        return Appender::createWriter(lines);
    }

private:
    std::shared_ptr<WholeLines> m_pLines;  // there as soon as there is a writer
};

template <class Appender>
class SilentAppenderClass : public Class {
public:
    LogString getName() const override { return Appender::getStaticClass().getName(); }
    log4cxx::helpers::Object* newInstance() const override { return new SilentAppender<Appender>; }
};

template <class Appender>
void replaceClass() {
    static const SilentAppenderClass<Appender> silent;
    Class::registerClass(silent);
}

}  // namespace

zvFileAppenders::zvFileAppenders() {
    replaceClass<log4cxx::FileAppender>();
    replaceClass<log4cxx::rolling::RollingFileAppender>();
}

zvFileAppenders::~zvFileAppenders() {
    try {
        Class::registerClass(log4cxx::FileAppender::getStaticClass());
        Class::registerClass(log4cxx::rolling::RollingFileAppender::getStaticClass());
    } catch (const std::bad_alloc&) {
        // The silent ones stay, which write as well.
    }
}

std::string zvFileAppenders::openingError(const log4cxx::FileAppender& appender) {
    const std::filesystem::path file = zvLogPath::of(appender.getFile());
    if (appender.getWriter() != nullptr || file.empty()) {
        return "";
    }
    const std::filesystem::path folder = file.parent_path();
    std::error_code error;
    if (!folder.empty()) {
        std::filesystem::create_directories(folder, error);
    }
    if (!error && !std::ofstream(file, std::ios::app | std::ios::binary)) {
        error = {errno, std::generic_category()};
    }
    return error ? error.message() : "";
}
