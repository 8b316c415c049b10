// Makes exceptions work in a process that brings the compiler's shared run time with it.
//
// The compiler's start code announces where this library's unwind tables lie. Where a module of the
// compiler's shared run time is loaded, it announces them there, while the library unwinds by the run time
// that is linked into it, finds no tables and ends the process at the first exception. So they are announced
// to the library's own as well.
#include <windows.h>

#include <cstring>

extern "C" {
void __register_frame_info(const void* begin, void* object);
void* __deregister_frame_info(const void* begin);
extern const IMAGE_DOS_HEADER __ImageBase;
}

namespace {

constexpr const char* SharedRunTime = "libgcc_s_dw2-1.dll";
/// As a section's name of eight characters holds it.
constexpr char TablesSection[IMAGE_SIZEOF_SHORT_NAME + 1] = ".eh_fram";
/// Before all other constructors: the first of them may raise.
constexpr int FirstOfAll = 101;

const void* Announced = nullptr;
/// What the run time keeps of one announcement; it takes less.
alignas(16) unsigned char Record[64];

const void* FindTables() {
    const auto* base = reinterpret_cast<const unsigned char*>(&__ImageBase);
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + __ImageBase.e_lfanew);
    const IMAGE_SECTION_HEADER* section = IMAGE_FIRST_SECTION(headers);
    for (unsigned i = 0; i < headers->FileHeader.NumberOfSections; ++i, ++section)
        if (std::memcmp(section->Name, TablesSection, IMAGE_SIZEOF_SHORT_NAME) == 0)
            return base + section->VirtualAddress;
    return nullptr;
}

__attribute__((constructor(FirstOfAll))) void AnnounceTables() {
    if (!::GetModuleHandleA(SharedRunTime)) return;
    Announced = FindTables();
    if (Announced) __register_frame_info(Announced, Record);
}

__attribute__((destructor(FirstOfAll))) void WithdrawTables() {
    if (Announced) __deregister_frame_info(Announced);
}

}  // namespace
