// SPDX-License-Identifier: MIT
#include "jobs.h"

#include "pages/failure.h"
#include "refusal.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace web {
namespace {

using pages::Value;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

// With one decimal.
Value seconds(milliseconds time) {
    return std::round(static_cast<double>(time.count()) / 100) / 10;
}

} // namespace

class Jobs::Job : public pages::Wait {
  public:
    Job(std::string id, std::string kind, Task task)
        : id_(std::move(id)), kind_(std::move(kind)), subject_(std::move(task.subject)),
          thread_([this, work = std::move(task.work)] { run(work); }) {}
    Job(const Job &) = delete;
    Job &operator=(const Job &) = delete;
    ~Job() override {
        requestEnd();
        thread_.join();
    }

    [[nodiscard]] const std::string &id() const { return id_; }

    [[nodiscard]] bool isOf(const std::string &kind, const std::string &subject) const {
        return kind_ == kind && subject_ == subject;
    }

    bool isRunning() {
        const std::lock_guard lock(mutex_);
        return running_;
    }

    void requestEnd() {
        {
            const std::lock_guard lock(mutex_);
            cancelled_ = running_;
        }
        changed_.notify_all();
    }

    Value asValue(bool withResult) {
        const std::lock_guard lock(mutex_);
        const auto elapsed = (running_ ? steady_clock::now() : end_) - start_;
        Value value = Value::object({{"id", id_},
                                     {"kind", kind_},
                                     {"state", state()},
                                     {"elapsed", seconds(std::chrono::duration_cast<milliseconds>(elapsed))},
                                     {"of", most_.count() > 0 ? seconds(most_) : Value()}});
        if (withResult) {
            value["result"] = result_;
            value["notes"] = notes_;
            value["error"] = error_;
        }
        return value;
    }

    bool pause(milliseconds time) override {
        std::unique_lock lock(mutex_);
        return !changed_.wait_for(lock, time, [this] { return cancelled_; });
    }

    bool cancelled() override {
        const std::lock_guard lock(mutex_);
        return cancelled_;
    }

    void progress(const std::string & /*what*/, milliseconds /*gone*/, milliseconds most) override {
        const std::lock_guard lock(mutex_);
        most_ = most;
    }

  private:
    [[nodiscard]] const char *state() const {
        if (running_) {
            return "running";
        }
        if (wasCancelled_) {
            return "cancelled";
        }
        return error_.isNull() ? "done" : "failed";
    }

    void run(const Work &work) {
        try {
            const pages::Report report = work(*this);
            Value notes = Value::list();
            for (const std::string &note : report.notes) {
                notes.push(note);
            }
            end(report.json, std::move(notes), {}, false);
        } catch (const pages::Cancelled &failure) {
            end({}, Value::list(), pages::errorValue(failure)["error"], true);
        } catch (const pages::Failure &failure) {
            end({}, Value::list(), pages::errorValue(failure)["error"], false);
        } catch (const std::exception &error) {
            end({}, Value::list(), pages::errorValue({pages::Category::Failed, error.what()})["error"], false);
        }
    }

    void end(Value result, Value notes, Value error, bool cancelled) {
        const std::lock_guard lock(mutex_);
        result_ = std::move(result);
        notes_ = std::move(notes);
        error_ = std::move(error);
        wasCancelled_ = cancelled;
        end_ = steady_clock::now();
        running_ = false;
    }

    const std::string id_;
    const std::string kind_;
    const std::string subject_;
    const steady_clock::time_point start_ = steady_clock::now();
    std::mutex mutex_;
    std::condition_variable changed_;
    bool running_ = true;
    bool cancelled_ = false;    // it was asked to end
    bool wasCancelled_ = false; // and did
    steady_clock::time_point end_;
    milliseconds most_{0};
    Value result_, error_;
    Value notes_ = Value::list();
    std::thread thread_; // last: it uses the others
};

Jobs::Jobs() = default;

Jobs::~Jobs() {
    cancelAll(); // together, before each is waited for
}

Value Jobs::start(std::string kind, Task task) {
    const std::lock_guard lock(mutex_);
    checkTurn(kind, task.subject);
    makeRoom();
    jobs_.emplace_back(std::to_string(++last_), std::move(kind), std::move(task));
    return jobs_.back().asValue(true);
}

Value Jobs::find(std::string_view id) {
    const std::lock_guard lock(mutex_);
    Job *job = jobOf(id);
    return job ? job->asValue(true) : Value();
}

Value Jobs::cancel(std::string_view id) {
    const std::lock_guard lock(mutex_);
    Job *job = jobOf(id);
    if (!job) {
        return {};
    }
    job->requestEnd();
    return job->asValue(true);
}

Value Jobs::all() {
    const std::lock_guard lock(mutex_);
    Value list = Value::list();
    for (Job &job : jobs_) {
        list.push(job.asValue(false));
    }
    return Value::object({{"jobs", list}});
}

void Jobs::cancelAll() {
    const std::lock_guard lock(mutex_);
    for (Job &job : jobs_) {
        job.requestEnd();
    }
}

Jobs::Job *Jobs::jobOf(std::string_view id) {
    const auto found = std::find_if(jobs_.begin(), jobs_.end(), [&](const Job &job) { return job.id() == id; });
    return found == jobs_.end() ? nullptr : &*found;
}

// The device has one place for the result: the end of one run would be taken for that of the other.
void Jobs::checkTurn(const std::string &kind, const std::string &subject) {
    const auto same =
        std::find_if(jobs_.begin(), jobs_.end(), [&](Job &job) { return job.isOf(kind, subject) && job.isRunning(); });
    if (same != jobs_.end()) {
        throw Refusal(Status::Unavailable, "the same is under way as job " + same->id() + ": wait until it has ended",
                      {{"Retry-After", "1"}});
    }
}

void Jobs::makeRoom() {
    const auto running = std::count_if(jobs_.begin(), jobs_.end(), [](Job &job) { return job.isRunning(); });
    if (static_cast<size_t>(running) >= kRunningMax) {
        throw Refusal(Status::Unavailable, "too many jobs run: wait until one has ended", {{"Retry-After", "1"}});
    }
    if (jobs_.size() >= kKeptMax) {
        jobs_.erase(std::find_if(jobs_.begin(), jobs_.end(), [](Job &job) { return !job.isRunning(); }));
    }
}

} // namespace web
