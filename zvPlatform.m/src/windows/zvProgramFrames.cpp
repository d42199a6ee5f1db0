// Compiled into the 32-bit DLL only. With the compiler's runtime linked in statically, the DLL's copy of the
// unwinder knows only the DLL's own frames, and an exception that leaves the DLL would terminate the process.
// So the frame tables of the executable are registered with it too. (On 64-bit Windows the system keeps one
// table for all modules.)
#include <windows.h>

#include <cstring>

extern "C" void __register_frame_info(const void* frames, void* record);

namespace {

// Section names are cut to eight characters. An executable with symbols stores longer names as "/number"; its
// debug sections do too, but are discardable.
bool holdsFrames(const IMAGE_SECTION_HEADER& section) {
    constexpr char name[] = ".eh_fram";
    const bool isNumbered =
        section.Name[0] == '/' && (section.Characteristics & IMAGE_SCN_MEM_DISCARDABLE) == 0;
    return isNumbered || std::memcmp(section.Name, name, sizeof(section.Name)) == 0;
}

class ProgramFrames {
public:
    ProgramFrames() {
        const auto* const program = reinterpret_cast<const unsigned char*>(::GetModuleHandleW(nullptr));
        const auto* const dosHeader = reinterpret_cast<const IMAGE_DOS_HEADER*>(program);
        const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(program + dosHeader->e_lfanew);
        const IMAGE_SECTION_HEADER* section = IMAGE_FIRST_SECTION(headers);
        for (unsigned i = 0; i < headers->FileHeader.NumberOfSections; ++i, ++section) {
            if (holdsFrames(*section)) {
                __register_frame_info(program + section->VirtualAddress, m_record);
            }
        }
    }

private:
    void* m_record[16] = {};  // storage for the runtime's record, which is smaller
};

ProgramFrames programFrames;

}  // namespace
