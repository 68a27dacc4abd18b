#pragma once

// A stand-in for the engine that makes PDFs, which fails or stays as a test wants it to.

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

/// Makes an engine in `folder`, which is then the whole of the path on which programs are found:
/// a program whose interpreter is this script of the shell. The script finds its own programs on
/// `path`.
inline void MakeStandInEngine(const QString &folder, const QByteArray &script,
                              const QByteArray &path) {
    const QByteArray python = QDir(folder).filePath("python").toUtf8();
    for (const auto &[name, content] :
         {std::pair("python", "#!/bin/sh\nPATH='" + path + "'\n" + script + "\n"),
          {"weasyprint", "#!" + python + "\n"}}) {
        QFile file(QDir(folder).filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << file.fileName().toStdString();
        file.write(content);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
}
