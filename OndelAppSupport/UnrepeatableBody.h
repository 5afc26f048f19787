#pragma once

#include <QByteArray>
#include <QIODevice>

#include <algorithm>
#include <cstring>

namespace OndelAppSupport {

/// What a request carries, readable once. The network library sends a request again by itself when a
/// connection ends without an answer, unless its body cannot be had a second time.
class UnrepeatableBody : public QIODevice {
public:
    UnrepeatableBody(QByteArray content, QObject* parent)
        : QIODevice(parent)
        , m_content(std::move(content)) {
        open(ReadOnly | Unbuffered);
    }

    bool isSequential() const override { return true; }
    bool reset() override { return false; }
    qint64 bytesAvailable() const override { return m_content.size() - m_read; }

protected:
    qint64 readData(char* to, qint64 most) override {
        const qint64 count = std::min(most, bytesAvailable());
        std::memcpy(to, m_content.constData() + m_read, static_cast<std::size_t>(count));
        m_read += count;
        return count > 0 || most == 0 ? count : -1;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    const QByteArray m_content;
    qint64 m_read = 0;
};

} // namespace OndelAppSupport
