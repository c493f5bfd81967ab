#include "Input.h"

#include <cerrno>
#include <cstring>
#include <fstream>

namespace Orvik::AssetTool {
namespace {

constexpr char kStandardInput[] = "-";

[[noreturn]] void Fail(const std::string& name, const char* what, int error)
{
    throw InputError(InputName(name) + ": " + what + (error != 0 ? std::string(": ") + std::strerror(error) : ""));
}

std::string ReadAll(std::istream& in, const std::string& name)
{
    std::string content;
    char buffer[1 << 16];
    errno = 0;
    do {
        in.read(buffer, sizeof buffer);
        content.append(buffer, static_cast<size_t>(in.gcount()));
    } while (in);
    // The end of the input sets eofbit and failbit; a failed read (of a directory, say) badbit.
    if (in.bad())
        Fail(name, "cannot read", errno);
    return content;
}

}  // namespace

std::string ReadInput(const std::string& name, std::istream& standardInput)
{
    if (name == kStandardInput)
        return ReadAll(standardInput, name);
    errno = 0;
    std::ifstream file(name, std::ios::binary);
    if (!file)
        Fail(name, "cannot open", errno);
    return ReadAll(file, name);
}

std::string InputName(const std::string& name) { return name == kStandardInput ? "standard input" : name; }

}  // namespace Orvik::AssetTool
