#include "platform/qt/LocalChannel.h"

#include <QDeadlineTimer>
#include <QThread>
#include <QTimer>
#include <QtEndian>
#include <memory>

#include "platform/qt/QtText.h"

namespace tw {
namespace {

constexpr char kStartLock[] = "QL-Tunwright-DDESync";
constexpr char kNameLock[] = "Tunwright.lock";
constexpr int kHeadBytes = 1 + static_cast<int>(sizeof(quint32));
// Limits of one conversation's duration and of the number of conversations at a time.
constexpr int kConversationMilliseconds = 10000;
constexpr int kMostConversations = 64;
// How long the holder of the name may take to end after it has stopped listening, and how often to check.
constexpr int kEndingMilliseconds = 5000;
constexpr unsigned long kLookMilliseconds = 20;

// One program that talks to this one. Its frames are processed as they arrive.
class Conversation {
  public:
    Conversation(QLocalSocket& socket, ChannelReceiver& receiver) : socket_(socket), receiver_(receiver) {}

    void Read() {
        buffer_ += socket_.readAll();
        while (!ended_ && buffer_.size() >= kHeadBytes) {
            const auto length = qFromBigEndian<quint32>(buffer_.constData() + 1);
            if (length > kMostFrameBytes) return End();
            if (buffer_.size() - kHeadBytes < static_cast<qsizetype>(length)) return;
            const char kind = buffer_[0];
            const std::string text = buffer_.mid(kHeadBytes, length).toStdString();
            buffer_.remove(0, kHeadBytes + static_cast<qsizetype>(length));
            Answer(Take(kind, text));
        }
    }

  private:
    bool Take(char kind, const std::string& text) {
        if (kind == kFrameOfTopic) return agreed_ = receiver_.AcceptsTopic(text);
        const auto message = static_cast<ChannelMessage>(kind);
        if (!agreed_ || (message != ChannelMessage::Commands && message != ChannelMessage::File))
            return false;
        return receiver_.Receive(message, text);
    }

    void Answer(bool taken) {
        const char answer = taken ? kFrameTaken : kFrameRefused;
        if (socket_.state() == QLocalSocket::ConnectedState) socket_.write(&answer, 1);
        if (!taken) End();
    }

    void End() {
        ended_ = true;
        buffer_.clear();
        socket_.disconnectFromServer();
    }

    QLocalSocket& socket_;
    ChannelReceiver& receiver_;
    QByteArray buffer_;
    bool agreed_ = false;
    bool ended_ = false;
};

}  // namespace

QByteArray MakeFrame(char kind, std::string_view text) {
    QByteArray frame(kHeadBytes, kind);
    qToBigEndian(static_cast<quint32>(text.size()), frame.data() + 1);
    return frame.append(text.data(), static_cast<qsizetype>(text.size()));
}

std::string DesktopName() {
    // The display of a Wayland session may be a path. A name too long for a socket keeps only its
    // last characters.
    constexpr int kLongest = 40;
    const char* const variable =
        qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ? "DISPLAY" : "WAYLAND_DISPLAY";
    QByteArray name = qgetenv(variable).replace('/', '_');
    // All screens of an X display belong to one desktop, so ":0.1" is ":0".
    if (const qsizetype dot = name.lastIndexOf('.'); dot > name.lastIndexOf(':') && name.contains(':'))
        name.truncate(dot);
    return name.right(kLongest).toStdString();
}

LocalChannel::LocalChannel(const std::string& desktop)
    : socket_(kChannelSocket + desktop),
      startLockName_(kStartLock + desktop),
      nameLockName_(kNameLock + desktop) {}

LocalChannel::~LocalChannel() {
    Unregister();
}

bool LocalChannel::Initialize() {
    path_ = RuntimeFolder();
    if (path_.empty()) return false;
    folder_ = OpenFolder(path_);
    return folder_.IsOpen();
}

bool LocalChannel::CreateLock() {
    return startLock_.Open(path_ + "/" + startLockName_) && nameLock_.Open(path_ + "/" + nameLockName_);
}

ChannelPort::Name LocalChannel::Register(ChannelReceiver& receiver) {
    const QDeadlineTimer ending(kEndingMilliseconds);
    for (;;) {
        if (nameLock_.TryTake()) return Listen(receiver) ? Name::Held : Name::Failed;
        if (Connect(static_cast<int>(ending.remainingTime())) || ending.hasExpired())
            return Name::HeldByOther;
        QThread::msleep(kLookMilliseconds);
    }
}

bool LocalChannel::Listen(ChannelReceiver& receiver) {
    Descriptor socket = ListenAt(folder_, socket_);
    if (!socket.IsOpen() || !server_.listen(socket.Number())) return false;
    socket.Release();
    QObject::connect(&server_, &QLocalServer::newConnection, &server_, [&] { Accept(receiver); });
    return true;
}

bool LocalChannel::Connect(int timeoutMilliseconds) {
    Descriptor socket = ConnectTo(folder_, socket_, timeoutMilliseconds);
    return socket.IsOpen() && IsSameUser(socket.Number()) && other_.setSocketDescriptor(socket.Release());
}

void LocalChannel::Accept(ChannelReceiver& receiver) {
    while (QLocalSocket* socket = server_.nextPendingConnection()) {
        QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        const auto open = server_.findChildren<QLocalSocket*>(QString(), Qt::FindDirectChildrenOnly).size();
        if (!IsSameUser(static_cast<int>(socket->socketDescriptor())) || open > kMostConversations) {
            socket->abort();
            continue;
        }
        socket->setReadBufferSize(kMostFrameBytes);
        QTimer::singleShot(kConversationMilliseconds, socket, &QLocalSocket::abort);
        const auto conversation = std::make_shared<Conversation>(*socket, receiver);
        QObject::connect(socket, &QLocalSocket::readyRead, socket, [conversation] { conversation->Read(); });
        conversation->Read();
    }
}

void LocalChannel::Unregister() {
    other_.abort();
    server_.close();
    server_.disconnect();
    for (QLocalSocket* socket : server_.findChildren<QLocalSocket*>()) delete socket;
}

ChannelPort::Sent LocalChannel::Send(ChannelMessage kind, std::string_view text, int timeoutMilliseconds) {
    if (text.size() > kMostFrameBytes) return Sent::Refused;
    QDeadlineTimer deadline(timeoutMilliseconds);
    // Connects anew each time: the other program ends a conversation after some seconds, and the brewer may
    // have left a box open since the last message.
    other_.abort();
    if (!Connect(timeoutMilliseconds)) return Sent::NoAnswer;
    const QByteArray frames[] = {MakeFrame(kFrameOfTopic, kChannelTopic),
                                 MakeFrame(static_cast<char>(kind), text)};
    for (const QByteArray& frame : frames) other_.write(frame);
    QByteArray answers;
    while (answers.size() < 2) {
        // Waiting for a reply also sends any data still in the buffer.
        if (!other_.bytesAvailable() && !other_.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            return Sent::NoAnswer;
        answers += other_.readAll();
        if (answers.contains(kFrameRefused)) return Sent::Refused;
    }
    return Sent::Taken;
}

}  // namespace tw
