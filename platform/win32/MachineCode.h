// Writes 32-bit x86 instructions, those that the library's own pages of code are made of.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <string>

namespace rux {

/// Code that is going to stand at a known address.
class TMachineCode {
 public:
    explicit TMachineCode(std::uint32_t address) : FAddress(address) {}

    TMachineCode& Bytes(std::initializer_list<unsigned char> bytes) {
        for (const unsigned char byte : bytes) FCode.push_back(static_cast<char>(byte));
        return *this;
    }
    TMachineCode& Dword(std::uint32_t value) {
        char bytes[4];
        std::memcpy(bytes, &value, sizeof bytes);
        FCode.append(bytes, sizeof bytes);
        return *this;
    }
    TMachineCode& Push(std::uint32_t value) { return Bytes({0x68}).Dword(value); }
    /// By way of EAX, so that the distance does not matter.
    TMachineCode& Call(std::uint32_t function) { return Bytes({0xB8}).Dword(function).Bytes({0xFF, 0xD0}); }
    /// A function of the system or of the library.
    template <class F>
    TMachineCode& CallOf(F* function) {
        return Call(static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(function)));
    }

    /// A short jump forward with the given opcode; Land gives it its target.
    std::size_t Jump(unsigned char opcode) {
        Bytes({opcode, 0});
        return FCode.size();
    }
    void Land(std::size_t jump) { FCode[jump - 1] = static_cast<char>(FCode.size() - jump); }

    std::uint32_t Here() const { return FAddress + static_cast<std::uint32_t>(FCode.size()); }
    const std::string& Code() const { return FCode; }

    static constexpr unsigned char JumpIfZero = 0x74, JumpIfNotZero = 0x75;

 private:
    std::uint32_t FAddress;
    std::string FCode;
};

}  // namespace rux
