#include "Probing.h"

#include "Input.h"
#include "Printable.h"

#include <Orvik/DataModel/MediaAssets/Probe.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <fstream>
#include <mutex>
#include <stdexcept>
#include <thread>

namespace Orvik::AssetTool {

using namespace DataModel::MediaAssets::Probe;

namespace {

constexpr char kWhiteSpace[] = " \t\r\n";

/// How many bytes of a file are looked at for the "{" of a document.
constexpr size_t kPeekSize = 4096;

}  // namespace

bool IsMediaText(const std::string& text)
{
    const size_t first = text.find_first_not_of(kWhiteSpace);
    return first != std::string::npos && text[first] != '{';
}

bool IsMediaFile(const std::string& file)
{
    std::ifstream in(file, std::ios::binary);
    if (!in)
        ReadInput(file, in);  // throws the InputError that names the reason
    std::string head(kPeekSize, '\0');
    in.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<size_t>(in.gcount()));
    return IsMediaText(head);
}

void WriteWarnings(const std::string& file, const ProbeResult& result, std::ostream& err)
{
    for (const ProbeWarning& warning : result.warnings)
        err << "orvik-asset: " << Printable(file) << ": warning: " << Printable(warning.message) << '\n';
}

void ProbeInParallel(const std::vector<std::string>& files, const std::function<std::string(const ProbeResult&)>& write,
                     const std::function<void(size_t, ProbeOutcome&)>& done, const std::function<void(size_t)>& progress)
{
    std::vector<ProbeOutcome> outcomes(files.size());
    std::vector<char> ready(files.size(), 0);
    size_t finishedCount = 0;
    std::mutex mutex;
    std::condition_variable finished;
    std::atomic<size_t> next{0};

    const auto work = [&] {
        for (size_t index = next++; index < files.size(); index = next++) {
            ProbeOutcome outcome;
            try {
                outcome.result = ProbeFile(files[index]);
                outcome.document = write(outcome.result);
            } catch (const ProbeError& error) {
                outcome.error = error.what();
            } catch (const std::exception& error) {
                outcome.error = files[index] + ": " + error.what();
            }
            const std::lock_guard<std::mutex> lock(mutex);
            outcomes[index] = std::move(outcome);
            ready[index] = 1;
            ++finishedCount;
            finished.notify_one();
        }
    };
    const size_t count = std::min<size_t>(std::max(1U, std::thread::hardware_concurrency()), files.size());
    std::vector<std::thread> workers;
    for (size_t i = 0; i < count; ++i)
        workers.emplace_back(work);

    // Outcomes go out in the order of the files, each once it and every one before it are done.
    size_t handed = 0;
    size_t reported = 0;
    std::unique_lock<std::mutex> lock(mutex);
    while (handed < files.size()) {
        finished.wait(lock, [&] { return finishedCount != reported; });
        reported = finishedCount;
        while (handed < files.size() && ready[handed] != 0) {
            ProbeOutcome outcome = std::move(outcomes[handed]);
            lock.unlock();
            done(handed, outcome);
            lock.lock();
            ++handed;
        }
        lock.unlock();
        progress(reported);
        lock.lock();
    }
    lock.unlock();
    for (std::thread& worker : workers)
        worker.join();
}

}  // namespace Orvik::AssetTool
