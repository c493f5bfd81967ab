#include <Orvik/DataModel/MediaAssets/Utils/PelkId.h>

#include <sstream>
#include <stdexcept>

namespace Orvik::DataModel::MediaAssets {
namespace {

// Each followed by the offending text and "'.".
constexpr char kInvalidUri[] = "Invalid uri '";
constexpr char kInvalidServerSerialNumber[] = "Invalid server serial number '";

/// The decimal number at the start of `text` as stream extraction reads it (white space skipped,
/// a sign taken, the rest ignored); false when nothing reads or it overflows.
bool ReadNumber(const std::string& text, int& number)
{
    std::istringstream stream(text);
    int value = 0;
    stream >> value;
    if (stream.fail())
        return false;
    number = value;
    return true;
}

uint8_t DigitOf(char character) { return static_cast<uint8_t>(character - '0'); }

bool IsDigit(char character, char lowest = '0') { return character >= lowest && character <= '9'; }

}  // namespace

void PelkId::Position(int p)
{
    page = static_cast<uint8_t>(p / 10 / 10);
    bank = static_cast<uint8_t>((p / 10) % 10);
    row = static_cast<uint8_t>(p % 10);
}

bool PelkId::IsValid() const
{
    return IsValidPage(page) && IsValidBank(bank) && IsValidRow(row) && (!HasCamera() || IsValidCamera(camera));
}

std::string PelkId::ToShortString() const
{
    const char text[] = {static_cast<char>(static_cast<uint8_t>('0' + page)),
                         static_cast<char>(static_cast<uint8_t>('0' + bank)),
                         static_cast<char>(static_cast<uint8_t>('0' + row)), camera, '\0'};
    return std::string(text);
}

std::string PelkId::ToString() const { return ToShortString() + "/" + std::to_string(serverId.SerialNumber()); }

PelkId PelkId::FromUri(const std::string& text)
{
    if (text.size() < 3)
        throw std::invalid_argument(kInvalidUri + text + "'.");
    PelkId id(ZanServerId(), DigitOf(text[0]), DigitOf(text[1]), DigitOf(text[2]), '\0');
    if (text.size() > 3) {
        id.camera = text[3];
        if (text.size() > 4 && text[4] == '/') {
            const std::string serial = text.substr(5);
            int number = 0;
            if (!ReadNumber(serial, number) || !ZanServerId::IsValid(number))
                throw std::invalid_argument(kInvalidServerSerialNumber + serial + "'.");
            id.serverId = ZanServerId(number);
        }
    }
    if (!id.IsValid())
        throw std::invalid_argument(kInvalidUri + text + "'.");
    return id;
}

bool PelkId::TryParse(const std::string& text, PelkId& id, int& serialNumber)
{
    serialNumber = 0;
    if (text.size() < 4 || !IsDigit(text[0]) || !IsDigit(text[1], '1') || !IsDigit(text[2]) || !IsValidCamera(text[3]))
        return false;
    id.page = DigitOf(text[0]);
    id.bank = DigitOf(text[1]);
    id.row = DigitOf(text[2]);
    id.camera = text[3];
    if (text.size() == 4)
        return true;
    if (text[4] != '/' || text.size() < 6 || !IsDigit(text[5]) || !ReadNumber(text.substr(5), serialNumber))
        return false;
    if (ZanServerId::IsValid(serialNumber))
        id.serverId = ZanServerId(serialNumber);
    return true;
}

bool PelkId::TryParse(const std::string& text, PelkId& id)
{
    int serialNumber = 0;
    return TryParse(text, id, serialNumber);
}

}  // namespace Orvik::DataModel::MediaAssets
