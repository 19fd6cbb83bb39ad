#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace tallyhut {

/// The program in a process of its own, driven through its standard input and output as any driver does it.
class ConsoleDriver {
public:
    enum class Questions {
        Answered,  ///< the log of the folder is continued, or a new one begun where there is none
        Open,      ///< the station form waits
    };

    /// Starts the program in the folder. The settings are those of a folder of their own.
    explicit ConsoleDriver(const std::string& folder, const std::vector<std::string>& options = {"--clock", kStart},
                           Questions questions = Questions::Answered);
    ~ConsoleDriver();
    ConsoleDriver(const ConsoleDriver&) = delete;
    ConsoleDriver& operator=(const ConsoleDriver&) = delete;
    ConsoleDriver(ConsoleDriver&&) = delete;
    ConsoleDriver& operator=(ConsoleDriver&&) = delete;

    static constexpr const char* kStart = "2026-11-07T21:04:33";

    /// Sends a command and returns what the program prints up to its next `ready`, or its end, line by line.
    std::vector<std::string> Do(const std::string& command);
    /// The value that `get` prints, as JSON text.
    std::string Get(const std::string& target);
    /// Types the exchange and presses Enter.
    void LogContact(const std::string& exchange);
    /// What was printed from the start up to the first `ready`.
    const std::vector<std::string>& Greeting() const { return greeting_; }
    /// The last `ready` or `exit` line; empty when the program ended without a word.
    const std::string& LastTurn() const { return lastTurn_; }
    pid_t Process() const { return process_; }
    /// Sends a line and reads nothing.
    void Send(const std::string& command) const;
    /// Closes the program's input and reads to its end.
    std::vector<std::string> CloseInput();
    /// The exit status once the program has ended; 128 and the signal that killed it.
    int Wait();

private:
    std::vector<std::string> ReadTurn();
    bool ReadLine(std::string& line);

    pid_t process_ = -1;
    int input_ = -1;
    int output_ = -1;
    std::string buffer_;
    std::vector<std::string> greeting_;
    std::string lastTurn_;
    bool waited_ = false;
    int status_ = 0;
};

/// A folder that is there for the length of a test.
class ContestFolder {
public:
    ContestFolder();
    ~ContestFolder();
    ContestFolder(const ContestFolder&) = delete;
    ContestFolder& operator=(const ContestFolder&) = delete;
    ContestFolder(ContestFolder&&) = delete;
    ContestFolder& operator=(ContestFolder&&) = delete;

    const std::string& Path() const { return path_; }
    std::string Read(const std::string& name) const;
    void Write(const std::string& name, const std::string& content) const;
    bool Has(const std::string& name) const;

private:
    std::string path_;
};

}  // namespace tallyhut
