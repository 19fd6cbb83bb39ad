#include "platform/real/secret_service.h"

#include <libsecret/secret.h>
#include <sys/eventfd.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <cerrno>
#include <condition_variable>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/path_error.h"
#include "platform/platform_error.h"
#include "platform/real/descriptor.h"
#include "values/secret.h"
#include "values/text.h"
#include "values/utf8.h"

namespace tallyhut {

/// What the library is asked by, in the thread that talks.
struct SecretService::Request {
    void (*answer)(Talk& talk, const Request& request) = nullptr;
    std::string place = {};
    std::string secret = {};
};

/// What both threads have; the talking one may be the last to let it go.
struct SecretService::Talk {
    Descriptor told{eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
    GCancellable* cancellable = g_cancellable_new();
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Request> requests = {};
    std::deque<KeyringAnswer> answers = {};
    bool isOver = false;

    Talk() = default;
    Talk(const Talk&) = delete;
    Talk& operator=(const Talk&) = delete;
    Talk(Talk&&) = delete;
    Talk& operator=(Talk&&) = delete;
    ~Talk() {
        for (Request& request : requests) {
            OverwriteFrom(request.secret, 0);
        }
        for (KeyringAnswer& answer : answers) {
            OverwriteFrom(answer.text, 0);
        }
        g_object_unref(cancellable);
    }

    void Run();
    void Tell(KeyringAnswer answer);
};

namespace {

constexpr const char* kSchemaName = "tallyhut.Cluster";
constexpr const char* kAttribute = "cluster";

using Schema = std::unique_ptr<SecretSchema, void (*)(SecretSchema*)>;
using Attributes = std::unique_ptr<GHashTable, void (*)(GHashTable*)>;

Schema TheSchema() {
    return {secret_schema_new(kSchemaName, SECRET_SCHEMA_NONE, kAttribute, SECRET_SCHEMA_ATTRIBUTE_STRING, nullptr),
            secret_schema_unref};
}

Attributes AttributesOf(const std::string& place) {
    GHashTable* table = g_hash_table_new_full(g_str_hash, g_str_equal, g_free, g_free);
    g_hash_table_insert(table, g_strdup(kAttribute), g_strdup(Latin1ToUtf8(place).c_str()));
    return {table, g_hash_table_unref};
}

/// The reason of an error, which is used up by it.
std::string ReasonOf(GError* error) {
    std::string reason = FromUtf8(error->message, "?");
    g_error_free(error);
    return reason;
}

/// The library would start a bus where there is none.
bool HasMessageBus() {
    const char* address = std::getenv("DBUS_SESSION_BUS_ADDRESS");
    const char* folder = std::getenv("XDG_RUNTIME_DIR");
    return (address != nullptr && *address != '\0') ||
           (folder != nullptr && access((std::string{folder} + "/bus").c_str(), F_OK) == 0);
}

}  // namespace

SecretService::SecretService() : talk_{std::make_shared<Talk>()} {
    if (!talk_->told.IsOpen()) {
        throw PlatformError{tallyhut::ReasonOf(errno)};
    }
}

SecretService::~SecretService() {
    g_cancellable_cancel(talk_->cancellable);
    const std::lock_guard lock{talk_->mutex};
    talk_->isOver = true;
    talk_->changed.notify_one();
}

void SecretService::Talk::Run() {
    std::unique_lock lock{mutex};
    while (!isOver) {
        if (requests.empty()) {
            changed.wait(lock);
            continue;
        }
        Request request = std::move(requests.front());
        OverwriteFrom(requests.front().secret, 0);  // a short one has stayed there
        requests.pop_front();
        lock.unlock();
        request.answer(*this, request);
        OverwriteFrom(request.secret, 0);
        lock.lock();
    }
}

void SecretService::Talk::Tell(KeyringAnswer answer) {
    const std::lock_guard lock{mutex};
    answers.push_back(answer);
    OverwriteFrom(answer.text, 0);
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = write(told.Number(), &one, sizeof one);
}

void SecretService::Ask(Request request) {
    {
        const std::lock_guard lock{talk_->mutex};
        talk_->requests.push_back(request);
        OverwriteFrom(request.secret, 0);
    }
    talk_->changed.notify_one();
    if (!hasThread_) {
        try {
            std::thread{[talk = talk_] { talk->Run(); }}.detach();
            hasThread_ = true;
        } catch (const std::system_error& failure) {  // no thread is to be had
            talk_->Tell({.kind = KeyringAnswer::Kind::Absent, .text = failure.what()});
        }
    }
}

void SecretService::Look() {
    Ask({.answer = [](Talk& talk, const Request& /*request*/) {
        if (!HasMessageBus()) {
            talk.Tell({.kind = KeyringAnswer::Kind::Absent, .text = "There is no desktop session."});
            return;
        }
        GError* error = nullptr;
        ::SecretService* service = secret_service_get_sync(SECRET_SERVICE_OPEN_SESSION, talk.cancellable, &error);
        if (service == nullptr) {
            talk.Tell({.kind = KeyringAnswer::Kind::Absent, .text = ReasonOf(error)});
            return;
        }
        g_object_unref(service);
        talk.Tell({.kind = KeyringAnswer::Kind::There});
    }});
}

void SecretService::Fetch(const std::string& place) {
    Ask({.answer =
             [](Talk& talk, const Request& request) {
                 GError* error = nullptr;
                 gchar* kept = secret_password_lookupv_nonpageable_sync(
                     TheSchema().get(), AttributesOf(request.place).get(), talk.cancellable, &error);
                 if (error != nullptr) {
                     talk.Tell({.kind = KeyringAnswer::Kind::Failed, .place = request.place, .text = ReasonOf(error)});
                     return;
                 }
                 talk.Tell({.kind = KeyringAnswer::Kind::Secret,
                            .place = request.place,
                            .text = kept == nullptr ? std::string{} : FromUtf8(kept, "?")});
                 if (kept != nullptr) {
                     secret_password_free(kept);
                 }
             },
         .place = place});
}

void SecretService::Keep(const std::string& place, const std::string& secret) {
    Ask({.answer =
             [](Talk& talk, const Request& request) {
                 const Secret text{Latin1ToUtf8(request.secret)};
                 const std::string label = "Tallyhut Log, DX cluster " + Latin1ToUtf8(request.place);
                 GError* error = nullptr;
                 secret_password_storev_sync(TheSchema().get(), AttributesOf(request.place).get(),
                                             SECRET_COLLECTION_DEFAULT, label.c_str(), text.text.c_str(),
                                             talk.cancellable, &error);
                 if (error != nullptr) {
                     talk.Tell({.kind = KeyringAnswer::Kind::Failed, .place = request.place, .text = ReasonOf(error)});
                 }
             },
         .place = place,
         .secret = secret});
}

void SecretService::Forget(const std::string& place) {
    Ask({.answer =
             [](Talk& talk, const Request& request) {
                 GError* error = nullptr;
                 secret_password_clearv_sync(TheSchema().get(), AttributesOf(request.place).get(), talk.cancellable,
                                             &error);
                 if (error != nullptr) {
                     talk.Tell({.kind = KeyringAnswer::Kind::Failed, .place = request.place, .text = ReasonOf(error)});
                 }
             },
         .place = place});
}

KeyringAnswer SecretService::Take() {
    const std::lock_guard lock{talk_->mutex};
    if (talk_->answers.empty()) {
        std::uint64_t count = 0;
        [[maybe_unused]] const ssize_t taken = read(talk_->told.Number(), &count, sizeof count);
        return {};
    }
    KeyringAnswer answer = std::move(talk_->answers.front());
    OverwriteFrom(talk_->answers.front().text, 0);
    talk_->answers.pop_front();
    return answer;
}

int SecretService::EventDescriptor() const {
    return talk_->told.Number();
}

/// A process that is not dumpable leaves no image, neither as a file nor to a program that collects them.
void SecretService::ShieldMemory() {
    prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
}

}  // namespace tallyhut
