#pragma once

#include <QByteArray>
#include <QColor>
#include <QString>

#include <atomic>
#include <chrono>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

/// A server of tiles on the loopback address, on a port of its own, that can misbehave. It answers
/// on threads of its own and keeps a record of what it was asked.
///
/// A path "/Z/X/Y..." is answered with a tile of one colour, that of `colourOf`; any other path
/// with what was set by `serve`, or else with a grey tile.
class HttpTestServer
{
public:
    enum class Behaviour
    {
        Fine,
        NotFound,        ///< 404
        TooManyRequests, ///< 429
        ServerError,     ///< 500
        Garbage,         ///< 200, and text that calls itself a picture
        TruncatedPng,    ///< 200, and the first half of a picture, told as the whole
        TruncatedJpeg,
        Hangs, ///< takes the request and never answers
        Closes ///< takes the request and closes the connection
    };

    struct Request
    {
        std::string path; ///< with the query
        std::string agent;
    };

    HttpTestServer();
    /// Ends what hangs.
    ~HttpTestServer();
    HttpTestServer(const HttpTestServer&) = delete;
    HttpTestServer& operator=(const HttpTestServer&) = delete;

    /// "http://127.0.0.1:PORT" with `tail` behind it.
    [[nodiscard]] QString address(const char* tail = "") const;

    void behave(Behaviour behaviour);
    /// For paths that contain `part`, from now on.
    void behave(const std::string& part, Behaviour behaviour);
    /// Before each answer, from now on.
    void waitBeforeAnswers(std::chrono::milliseconds time) { m_waitMs = int(time.count()); }
    /// For paths that contain `part`: this content, with status 200.
    void serve(const std::string& part, const QByteArray& content);

    /// In the order in which they came.
    [[nodiscard]] std::vector<Request> requests() const;
    [[nodiscard]] std::vector<std::string> paths() const;
    /// How many connections waited for an answer at the same time, at most.
    [[nodiscard]] int mostConnections() const { return m_mostOpen; }

    static constexpr int kTileSize = 256;
    [[nodiscard]] static QColor colourOf(int zoom, int column, int row);
    [[nodiscard]] static QByteArray picture(const QColor& colour, const char* format = "PNG");

private:
    void accept();
    void serveConnection(int socket);
    [[nodiscard]] QByteArray answerTo(const std::string& path, Behaviour behaviour) const;
    [[nodiscard]] Behaviour behaviourFor(const std::string& path) const;
    /// False when the server ends or the client closes the connection before the time is over.
    [[nodiscard]] bool waitOn(int socket, int milliseconds) const;

    int m_listener = -1;
    int m_port = 0;
    std::atomic<bool> m_isEnded = false;
    std::atomic<int> m_open = 0;
    std::atomic<int> m_mostOpen = 0;
    std::atomic<int> m_waitMs = 0;
    mutable std::mutex m_mutex; ///< of all below
    Behaviour m_behaviour = Behaviour::Fine;
    std::map<std::string, Behaviour> m_behaviours;
    std::map<std::string, QByteArray> m_contents;
    std::vector<Request> m_requests;
    std::vector<std::thread> m_threads; ///< one a connection
    std::thread m_acceptor;
};
