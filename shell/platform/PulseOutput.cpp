#include "shell/platform/PulseOutput.h"

#include <cstdint>
#include <dlfcn.h>
#include <pulse/pulseaudio.h>

namespace keyfluent::shell
{
namespace
{

// What is called of the library, found by name. Never unloaded.
class PulseLibrary
{
public:
    bool Load();

    decltype(&::pa_mainloop_new) mainloopNew = nullptr;
    decltype(&::pa_mainloop_free) mainloopFree = nullptr;
    decltype(&::pa_mainloop_get_api) mainloopApi = nullptr;
    decltype(&::pa_mainloop_iterate) mainloopIterate = nullptr;
    decltype(&::pa_context_new) contextNew = nullptr;
    decltype(&::pa_context_connect) contextConnect = nullptr;
    decltype(&::pa_context_get_state) contextState = nullptr;
    decltype(&::pa_context_is_pending) contextIsPending = nullptr;
    decltype(&::pa_context_disconnect) contextDisconnect = nullptr;
    decltype(&::pa_context_unref) contextUnref = nullptr;
    decltype(&::pa_stream_new) streamNew = nullptr;
    decltype(&::pa_stream_connect_playback) streamConnect = nullptr;
    decltype(&::pa_stream_get_state) streamState = nullptr;
    decltype(&::pa_stream_flush) streamFlush = nullptr;
    decltype(&::pa_stream_write) streamWrite = nullptr;
    decltype(&::pa_stream_disconnect) streamDisconnect = nullptr;
    decltype(&::pa_stream_unref) streamUnref = nullptr;
    decltype(&::pa_operation_get_state) operationState = nullptr;
    decltype(&::pa_operation_unref) operationUnref = nullptr;

private:
    template <typename Function> void Find(const char* name, Function& function)
    {
        function = reinterpret_cast<Function>(::dlsym(library_, name));
        complete_ = complete_ && function != nullptr;
    }

    void* library_ = nullptr;
    bool complete_ = false;
};

bool PulseLibrary::Load()
{
    if (library_ != nullptr) {
        return complete_;
    }
    library_ = ::dlopen("libpulse.so.0", RTLD_NOW | RTLD_LOCAL);
    if (library_ == nullptr) {
        return false;
    }
    complete_ = true;
    Find("pa_mainloop_new", mainloopNew);
    Find("pa_mainloop_free", mainloopFree);
    Find("pa_mainloop_get_api", mainloopApi);
    Find("pa_mainloop_iterate", mainloopIterate);
    Find("pa_context_new", contextNew);
    Find("pa_context_connect", contextConnect);
    Find("pa_context_get_state", contextState);
    Find("pa_context_is_pending", contextIsPending);
    Find("pa_context_disconnect", contextDisconnect);
    Find("pa_context_unref", contextUnref);
    Find("pa_stream_new", streamNew);
    Find("pa_stream_connect_playback", streamConnect);
    Find("pa_stream_get_state", streamState);
    Find("pa_stream_flush", streamFlush);
    Find("pa_stream_write", streamWrite);
    Find("pa_stream_disconnect", streamDisconnect);
    Find("pa_stream_unref", streamUnref);
    Find("pa_operation_get_state", operationState);
    Find("pa_operation_unref", operationUnref);
    return complete_;
}

constexpr std::uint32_t frameSize = soundChannels * sizeof(std::int16_t);
constexpr std::uint32_t latency = soundRate / 25; // frames, 40 ms
constexpr std::uint32_t serversChoice = static_cast<std::uint32_t>(-1);

class PulseOutput : public SoundOutput
{
public:
    PulseOutput() = default;
    ~PulseOutput() override { Close(); }

    PulseOutput(const PulseOutput&) = delete;
    PulseOutput& operator=(const PulseOutput&) = delete;

    bool Open() override;
    bool Play(const Samples& samples) override;
    void Close() override;

private:
    bool Connect();
    bool MakeStream();
    bool Send(const Samples& samples);

    // Waits for the server until `reached` says so; false when it is gone.
    template <typename Condition> bool WaitUntil(Condition reached);
    bool IsAlive() const;

    PulseLibrary library_;
    pa_mainloop* loop_ = nullptr;
    pa_context* context_ = nullptr;
    pa_stream* stream_ = nullptr;
};

bool PulseOutput::IsAlive() const
{
    return PA_CONTEXT_IS_GOOD(library_.contextState(context_)) &&
           (stream_ == nullptr || PA_STREAM_IS_GOOD(library_.streamState(stream_)));
}

template <typename Condition> bool PulseOutput::WaitUntil(Condition reached)
{
    while (IsAlive()) {
        if (reached()) {
            return true;
        }
        if (library_.mainloopIterate(loop_, 1, nullptr) < 0) {
            return false;
        }
    }
    return false;
}

bool PulseOutput::Open()
{
    if (!library_.Load()) {
        return false;
    }
    Close();
    if (Connect() && MakeStream()) {
        return true;
    }
    Close();
    return false;
}

bool PulseOutput::Connect()
{
    loop_ = library_.mainloopNew();
    if (loop_ == nullptr) {
        return false;
    }
    context_ = library_.contextNew(library_.mainloopApi(loop_), "KeyFluent");
    if (context_ == nullptr ||
        library_.contextConnect(context_, nullptr, PA_CONTEXT_NOFLAGS, nullptr) < 0) {
        return false;
    }
    return WaitUntil([this] { return library_.contextState(context_) == PA_CONTEXT_READY; });
}

bool PulseOutput::MakeStream()
{
    const pa_sample_spec format{PA_SAMPLE_S16NE, soundRate, soundChannels};
    // One frame of lead-in instead of none: a stream without goes on by itself when it has run dry,
    // and the server then asks for more a hundred times a second.
    pa_buffer_attr buffer{};
    buffer.maxlength = serversChoice;
    buffer.tlength = latency * frameSize;
    buffer.prebuf = frameSize;
    buffer.minreq = serversChoice;
    buffer.fragsize = serversChoice;
    stream_ = library_.streamNew(context_, "Key sounds", &format, nullptr);
    if (stream_ == nullptr ||
        library_.streamConnect(stream_, nullptr, &buffer, PA_STREAM_ADJUST_LATENCY, nullptr,
                               nullptr) < 0) {
        return false;
    }
    return WaitUntil([this] { return library_.streamState(stream_) == PA_STREAM_READY; });
}

bool PulseOutput::Play(const Samples& samples)
{
    // What the server has said since the last playing.
    while (library_.mainloopIterate(loop_, 0, nullptr) > 0) {
    }
    if (IsAlive() && Send(samples)) {
        return true;
    }
    Close();
    return false;
}

// The whole sound goes at once, however much the server has asked for: the next one takes back what
// is unheard. The server's answer to the flush is waited for, so that a server that has stopped
// does not gather sounds to play later.
bool PulseOutput::Send(const Samples& samples)
{
    pa_operation* flush = library_.streamFlush(stream_, nullptr, nullptr);
    if (flush == nullptr) {
        return false;
    }
    bool sent = samples.empty() ||
                library_.streamWrite(stream_, samples.data(), samples.size() * sizeof(samples[0]),
                                     nullptr, 0, PA_SEEK_RELATIVE) >= 0;
    sent = sent && WaitUntil([this, flush] {
               return library_.operationState(flush) != PA_OPERATION_RUNNING &&
                      library_.contextIsPending(context_) == 0;
           });
    library_.operationUnref(flush);
    return sent;
}

void PulseOutput::Close()
{
    if (stream_ != nullptr) {
        library_.streamDisconnect(stream_);
        library_.streamUnref(stream_);
        stream_ = nullptr;
    }
    if (context_ != nullptr) {
        library_.contextDisconnect(context_);
        library_.contextUnref(context_);
        context_ = nullptr;
    }
    if (loop_ != nullptr) {
        library_.mainloopFree(loop_);
        loop_ = nullptr;
    }
}

} // namespace

std::unique_ptr<SoundOutput> MakePulseOutput()
{
    return std::make_unique<PulseOutput>();
}

} // namespace keyfluent::shell
