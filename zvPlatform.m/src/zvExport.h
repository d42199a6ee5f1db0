#ifndef ZV_EXPORT_H
#define ZV_EXPORT_H

/// ZV_EXPORT marks the public symbols of zvCommonUtilsExport; everything else has hidden visibility.
/// ZV_LOGGER_API does the same for the logging library.
#if defined(_WIN32)
#if defined(ZV_STATIC)
#define ZV_EXPORT
#elif defined(zvCommonUtilsExport_EXPORTS)
#define ZV_EXPORT __declspec(dllexport)
#else
#define ZV_EXPORT __declspec(dllimport)
#endif
#if defined(zvLogger_EXPORTS)
#define ZV_LOGGER_API __declspec(dllexport)
#else
#define ZV_LOGGER_API
#endif
#if defined(__i386__) && defined(__GNUC__) && !defined(ZV_STATIC) && !defined(zvCommonUtilsExport_EXPORTS)
namespace zvPlatform {

/// The unwinder in the executable initialises its tables at the first throw in the executable, and needs them
/// for an exception that comes out of the DLL: so the executable throws once at start-up.
inline const bool unwinderIsReady = []() noexcept {
    try {
        throw false;
    } catch (bool) {
        return true;
    }
}();

}  // namespace zvPlatform
#endif
#else
#define ZV_EXPORT [[gnu::visibility("default")]]
#define ZV_LOGGER_API [[gnu::visibility("default")]]
#endif

#endif
