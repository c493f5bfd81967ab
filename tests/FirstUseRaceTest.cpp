#include <Orvik/DataModel/MediaAssets.h>

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

using namespace Orvik::DataModel::MediaAssets;

namespace {

// Touches every function-local static of the library; each result is checked so that nothing
// is optimised away and a half-built static would show.
int UseEveryStatic()
{
    int good = 0;
    bool failed = true;
    good += ToString(WrapperFormat::MPEGDASH_Index) == "MPEGDASH_Index";
    good += ToResourceFormat("ToBeDefined") == ResourceFormat::ToBeDefined;
    good += ToAudioCodingFormat("PCM", failed) == AudioCodingFormat::PCM;
    good += ToString(VideoCodingFormat::Raw) == "Raw";
    good += ToBitRateMode("vbr") == BitRateMode::vbr;
    good += ToString(ChromaSubSampling::CS_422) == "CS_422";
    good += ToColorSpace("BT709") == ColorSpace::BT709;
    good += ToString(ScanMode::interlaced) == "interlaced";
    good += ToBoxing("letterbox") == Boxing::letterbox;
    good += ToString(FieldOrdering::top) == "top";
    good += ToFillAndKeyType("key") == FillAndKeyType::key;
    good += ToString(AnnotationType::CuePoint) == "CuePoint";
    good += ToArchiveStatus("Archived") == ArchiveStatus::Archived;
    good += ToString(AssetType::train) == "train";
    good += ToTimecodePrimary("User") == TimecodePrimary::User;
    good += ToString(TimeCodeStandard::SmptePal25) == "smpte.pal.25";
    good += ToUserTimecodeType("AnalLtc") == UserTimecodeType::AnalLtc;
    good += Essence::ToType("Data") == Essence::Data;
    good += Location::ToType("ZanLocation") == Location::ZanLocation;
    good += Identifier::Empty().IsEmpty();
    good += FullyQualifiedName::Empty().IsEmpty();
    good += PelkOperatorMetadataProfile::StaticFullyQualifiedName().Value() == "orvik.pelkoperator";
    good += AnglesPelkOperatorMetadataProfile::StaticFullyQualifiedName().Value() == "orvik.pelkoperator";
    good += PelkOperatorMetadataProfile::StaticKeys().size() == 20;
    good += PelkOperatorMetadataProfile::Empty().Keywords().empty();
    good += AnglesPelkOperatorMetadataProfile::Empty().Page() == 0;
    good += AnglesMediaAssetGroup::StaticType() == "AnglesMediaAssetGroup";
    good += TimeCodeString().IsStringFormatValid("10:00:00:00");
    good += DaxContentTrackLocation().InitFromUri("storage://a/b/c");
    return good;
}

constexpr int kStatics = 29;

}  // namespace

// Run alone in its process (CTest starts one per test), so every static is still unbuilt here.
TEST(FirstUse, ManyThreadsRaceToEveryFunctionLocalStatic)
{
    constexpr int kThreads = 8;
    std::atomic<int> ready{0};
    std::atomic<int> allGood{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i) {
        threads.emplace_back([&] {
            ++ready;
            while (ready.load() < kThreads) {
            }
            if (UseEveryStatic() == kStatics)
                ++allGood;
        });
    }
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(allGood.load(), kThreads);
}
