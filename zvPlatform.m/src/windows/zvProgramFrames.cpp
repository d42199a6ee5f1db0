// A part of the 32-bit DLL alone. With the compiler's runtime linked in, the DLL's own copy unwinds what it
// throws, and that copy knows the frames of the DLL only: an exception would end the process at its border.
// It is told of the program's frames too. (For 64 bits the system keeps one table for all.)
#include <windows.h>

#include <cstring>

extern "C" void __register_frame_info(const void* frames, void* record);

namespace {

// By its first eight letters; a program with symbols has a number for a longer name, and debug sections
// besides, which can be thrown away.
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
    void* m_record[16] = {};  // the runtime's own, which is smaller
};

ProgramFrames programFrames;

}  // namespace
