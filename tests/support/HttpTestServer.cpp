#include "tests/support/HttpTestServer.h"

#include <QBuffer>
#include <QImage>

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>

namespace {

QByteArray reply(const char* status, const QByteArray& content, const char* type = "image/png")
{
    return QByteArray("HTTP/1.1 ") + status + "\r\nContent-Type: " + type +
           "\r\nContent-Length: " + QByteArray::number(content.size()) +
           "\r\nConnection: close\r\n\r\n" + content;
}

/// With a pattern, so that half of it is not the whole.
QByteArray firstHalfOfPicture(const char* format)
{
    QImage image(HttpTestServer::kTileSize, HttpTestServer::kTileSize, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixelColor(x, y, QColor((x * 7) % 256, (y * 13) % 256, (x * y) % 256));
    }
    QByteArray content;
    QBuffer buffer(&content);
    image.save(&buffer, format);
    return content.left(content.size() / 2);
}

std::string headerOf(const std::string& request, const std::string& name)
{
    const std::size_t start = request.find("\r\n" + name + ": ");
    if (start == std::string::npos)
        return {};
    const std::size_t value = start + name.size() + 4;
    return request.substr(value, request.find("\r\n", value) - value);
}

} // namespace

HttpTestServer::HttpTestServer()
{
    m_listener = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const any = reinterpret_cast<sockaddr*>(&address);
    if (::bind(m_listener, any, size) != 0 || ::listen(m_listener, 16) != 0 ||
        ::getsockname(m_listener, any, &size) != 0)
        qFatal("no port on the loopback address");
    m_port = ntohs(address.sin_port);
    m_acceptor = std::thread([this] { accept(); });
}

HttpTestServer::~HttpTestServer()
{
    m_isEnded = true;
    m_acceptor.join();
    for (std::thread& thread : m_threads)
        thread.join();
    ::close(m_listener);
}

QString HttpTestServer::address(const char* tail) const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(m_port) + QString::fromUtf8(tail);
}

void HttpTestServer::behave(Behaviour behaviour)
{
    const std::lock_guard lock(m_mutex);
    m_behaviour = behaviour;
    m_behaviours.clear();
}

void HttpTestServer::behave(const std::string& part, Behaviour behaviour)
{
    const std::lock_guard lock(m_mutex);
    m_behaviours[part] = behaviour;
}

void HttpTestServer::serve(const std::string& part, const QByteArray& content)
{
    const std::lock_guard lock(m_mutex);
    m_contents[part] = content;
}

std::vector<HttpTestServer::Request> HttpTestServer::requests() const
{
    const std::lock_guard lock(m_mutex);
    return m_requests;
}

std::vector<std::string> HttpTestServer::paths() const
{
    const std::lock_guard lock(m_mutex);
    std::vector<std::string> paths;
    for (const Request& request : m_requests)
        paths.push_back(request.path);
    return paths;
}

QColor HttpTestServer::colourOf(int zoom, int column, int row)
{
    return {zoom * 10, column * 37 % 256, row * 59 % 256};
}

QByteArray HttpTestServer::picture(const QColor& colour, const char* format)
{
    QImage image(kTileSize, kTileSize, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray content;
    QBuffer buffer(&content);
    image.save(&buffer, format);
    return content;
}

void HttpTestServer::accept()
{
    while (!m_isEnded) {
        pollfd waiting{m_listener, POLLIN, 0};
        if (::poll(&waiting, 1, 20) != 1)
            continue;
        const int socket = ::accept(m_listener, nullptr, nullptr);
        if (socket < 0)
            continue;
        const int open = ++m_open;
        m_mostOpen = std::max(m_mostOpen.load(), open);
        m_threads.emplace_back([this, socket] { serveConnection(socket); });
    }
}

void HttpTestServer::serveConnection(int socket)
{
    std::string request;
    char bytes[4096];
    while (!m_isEnded && request.find("\r\n\r\n") == std::string::npos) {
        pollfd waiting{socket, POLLIN, 0};
        if (::poll(&waiting, 1, 20) == 0)
            continue;
        const ssize_t count = ::recv(socket, bytes, sizeof bytes, 0);
        if (count <= 0)
            break;
        request.append(bytes, static_cast<std::size_t>(count));
    }
    const std::size_t start = request.find(' ') + 1;
    const std::string path = request.substr(start, request.find(' ', start) - start);
    {
        const std::lock_guard lock(m_mutex);
        m_requests.push_back({path, headerOf(request, "User-Agent")});
    }
    const Behaviour behaviour = behaviourFor(path);
    const int waitMs = behaviour == Behaviour::Hangs ? 3600'000 : m_waitMs.load();
    const bool answers = behaviour != Behaviour::Closes && waitOn(socket, waitMs);
    const QByteArray answer = answers ? answerTo(path, behaviour) : QByteArray();
    --m_open; // before the client can see the end and come again
    ::send(socket, answer.constData(), static_cast<std::size_t>(answer.size()), MSG_NOSIGNAL);
    ::close(socket);
}

QByteArray HttpTestServer::answerTo(const std::string& path, Behaviour behaviour) const
{
    switch (behaviour) {
    case Behaviour::NotFound:
        return reply("404 Not Found", "none", "text/plain");
    case Behaviour::TooManyRequests:
        return reply("429 Too Many Requests", "slower", "text/plain");
    case Behaviour::ServerError:
        return reply("500 Internal Server Error", "broken", "text/plain");
    case Behaviour::Garbage:
        return reply("200 OK", "this is not a picture, whatever the header says");
    case Behaviour::TruncatedPng:
        return reply("200 OK", firstHalfOfPicture("PNG"));
    case Behaviour::TruncatedJpeg:
        return reply("200 OK", firstHalfOfPicture("JPG"), "image/jpeg");
    default:
        break;
    }
    const std::lock_guard lock(m_mutex);
    for (const auto& [part, content] : m_contents) {
        if (path.find(part) != std::string::npos)
            return reply("200 OK", content, content.startsWith("<?xml") ? "text/xml" : "image/png");
    }
    int zoom = 0;
    int column = 0;
    int row = 0;
    const bool isTile = std::sscanf(path.c_str(), "/%d/%d/%d", &zoom, &column, &row) == 3;
    return reply("200 OK", picture(isTile ? colourOf(zoom, column, row) : QColor(Qt::gray)));
}

HttpTestServer::Behaviour HttpTestServer::behaviourFor(const std::string& path) const
{
    const std::lock_guard lock(m_mutex);
    for (const auto& [part, behaviour] : m_behaviours) {
        if (path.find(part) != std::string::npos)
            return behaviour;
    }
    return m_behaviour;
}

bool HttpTestServer::waitOn(int socket, int milliseconds) const
{
    for (int waited = 0; waited < milliseconds && !m_isEnded; waited += 10) {
        pollfd client{socket, POLLIN, 0};
        if (::poll(&client, 1, 10) != 0)
            return false;
    }
    return !m_isEnded;
}
