#include "video/AnnexB.h"

namespace swplay {

namespace {

constexpr std::string_view StartCode("\0\0\1", 3);

// More than parameter sets and messages before a slice ever take; bounds the work on a hostile unit.
constexpr std::size_t MaxHeaderBytes = std::size_t(64) * 1024;

constexpr int NalTypeMask = 0x1f;
constexpr int FirstSliceType = 1;
constexpr int LastSliceType = 5;
constexpr int IdrSliceType = 5;

} // namespace

bool startsWithIdr(std::string_view accessUnit)
{
    const std::string_view head = accessUnit.substr(0, MaxHeaderBytes);
    std::size_t at = head.find(StartCode);
    while (at != std::string_view::npos && at + StartCode.size() < head.size()) {
        at += StartCode.size();
        const int type = static_cast<unsigned char>(head[at]) & NalTypeMask;
        if (type >= FirstSliceType && type <= LastSliceType)
            return type == IdrSliceType;
        at = head.find(StartCode, at);
    }
    return false;
}

} // namespace swplay
