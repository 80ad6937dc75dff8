// The small pieces: wait screen and icons out of files.
#include <gtest/gtest.h>
#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include "forms/base/UIconUtils.h"
#include "forms/base/UWaitScreen.h"
#include "platform/ui/Application.h"
#include "tests/support/Screen.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void Put(QByteArray& bytes, int at, uint32_t value, int size) {
    if (bytes.size() < at + size) bytes.resize(at + size, '\0');
    for (int i = 0; i < size; ++i) bytes[at + i] = char(value >> (8 * i));
}

QByteArray Png(int size, const QColor& color) {
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(color);
    QBuffer buffer;
    image.save(&buffer, "png");
    return buffer.data();
}

const struct {
    uint32_t Size, Depth;
    QByteArray Bytes;
} kPictures[] = {{16, 4, Png(16, Qt::green)}, {16, 32, Png(16, Qt::red)}, {32, 32, Png(32, Qt::blue)}};
const QByteArray kAll = kPictures[0].Bytes + kPictures[1].Bytes + kPictures[2].Bytes;

// Header and entries of the pictures; `file`: with their places in the file, else with their numbers.
QByteArray Directory(bool file) {
    QByteArray bytes;
    const int entry = file ? 16 : 14;
    Put(bytes, 2, 1, 2);
    Put(bytes, 4, 3, 2);
    int place = 6 + 3 * entry;
    for (int i = 0; i < 3; ++i) {
        const auto& [size, depth, picture] = kPictures[i];
        Put(bytes, 6 + i * entry, size, 1);
        Put(bytes, 7 + i * entry, size, 1);
        Put(bytes, 12 + i * entry, depth, 2);
        Put(bytes, 14 + i * entry, uint32_t(picture.size()), 4);
        Put(bytes, 18 + i * entry, uint32_t(file ? place : i + 1), file ? 4 : 2);
        place += int(picture.size());
    }
    return bytes;
}

// A program of one section at address 0x1000 (file 0x400) that holds the resources.
QByteArray Program() {
    QByteArray exe = "MZ";
    Put(exe, 0x3C, 0x80, 4);
    Put(exe, 0x80, 0x4550, 4);
    Put(exe, 0x86, 1, 2);
    Put(exe, 0x94, 0xE0, 2);
    Put(exe, 0x98, 0x10B, 2);
    Put(exe, 0x98 + 96 + 16, 0x1000, 4);
    const int section = 0x98 + 0xE0, base = 0x400;
    Put(exe, section + 12, 0x1000, 4);
    Put(exe, section + 16, 0x1000, 4);
    Put(exe, section + 20, base, 4);
    const auto directory = [&](int at, std::initializer_list<std::pair<uint32_t, uint32_t>> entries) {
        Put(exe, base + at + 14, uint32_t(entries.size()), 2);
        int place = base + at + 16;
        for (const auto& [id, to] : entries) {
            Put(exe, place, id, 4);
            Put(exe, place + 4, to, 4);
            place += 8;
        }
    };
    constexpr uint32_t kSub = 0x80000000u;
    directory(0x00, {{3, kSub | 0x20}, {14, kSub | 0x50}});
    directory(0x20, {{1, kSub | 0x70}, {2, kSub | 0x90}, {3, kSub | 0xB0}});
    directory(0x50, {{7, kSub | 0xD0}});
    directory(0x70, {{1033, 0xF0}});
    directory(0x90, {{1033, 0x100}});
    directory(0xB0, {{1033, 0x110}});
    directory(0xD0, {{1033, 0x120}});
    int data = 0x130;
    for (const auto& [entry, bytes] : {std::pair(0xF0, kPictures[0].Bytes),
                                       {0x100, kPictures[1].Bytes},
                                       {0x110, kPictures[2].Bytes},
                                       {0x120, Directory(false)}}) {
        Put(exe, base + entry, uint32_t(0x1000 + data), 4);
        Put(exe, base + entry + 4, uint32_t(bytes.size()), 4);
        for (const char byte : bytes) Put(exe, base + data++, uint8_t(byte), 1);
    }
    exe.resize(base + 0x1000, '\0');
    return exe;
}

TEST(Icons, ComeInTheSizeAskedForOutOfFilesAndPrograms) {
    QTemporaryDir folder;
    const QByteArray program = Program();
    for (const auto& [name, bytes] : {std::pair(u"a.ico"_s, Directory(true) + kAll), {u"a.exe"_s, program}}) {
        SCOPED_TRACE(name.toStdString());
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        EXPECT_EQ(GetIconFromSize(file.fileName(), 16).pixelColor(8, 8), QColor(Qt::red));
        EXPECT_EQ(GetIconFromSize(file.fileName(), 24).size(), QSize(24, 24));
        EXPECT_EQ(GetIconFromSize(file.fileName(), 24).pixelColor(8, 8), QColor(Qt::blue));
        EXPECT_EQ(GetIconFromSize(file.fileName(), 256).width(), 256);
        EXPECT_TRUE(GetIconFromSize(file.fileName(), 0).isNull());
    }
    EXPECT_TRUE(GetIconFromSize(folder.filePath(u"missing.ico"_s), 16).isNull());
    for (int cut = 2; cut < program.size(); cut += 37) {
        QFile file(folder.filePath(u"cut.exe"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(program.left(cut));
        file.close();
        GetIconFromSize(file.fileName(), 32);  // neither crashes nor reads outside
    }
}

TEST(WaitScreen, ClosesOnlyWithTagOne) {
    auto* wait = NewForm<TFrmWaitScreen>(Application);
    wait->Show();
    EXPECT_EQ(wait->Caption(), u"Aguarde..."_s);
    EXPECT_EQ(QSize(wait->ClientWidth(), wait->ClientHeight()), QSize(433, 149));
    wait->Widget()->close();
    Press(VK_F4, ssAlt);
    EXPECT_TRUE(wait->Visible());
    bool freed = false;
    const TFreeNotice notice = wait->AddFreeNotification([&] { freed = true; });
    wait->SetTag(1);
    wait->Close();
    EXPECT_TRUE(Until([&] { return freed; }));
}

}  // namespace
