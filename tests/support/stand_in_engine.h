#pragma once

// A stand-in for the engine that makes PDFs, which fails or stays as a test wants it to.

#include <QDir>
#include <QFile>

/// Makes an engine in `folder`, for a test that looks for programs there alone: a program whose
/// interpreter is this script of the shell. The script finds its own programs on `path`.
inline void MakeStandInEngine(const QString &folder, const QByteArray &script,
                              const QByteArray &path) {
    const QByteArray python = QDir(folder).filePath("python").toUtf8();
    for (const auto &[name, content] :
         {std::pair("python", "#!/bin/sh\nPATH='" + path + "'\n" + script + "\n"),
          {"weasyprint", "#!" + python + "\n"}}) {
        QFile file(QDir(folder).filePath(name));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("%s cannot be written", qPrintable(file.fileName()));
        file.write(content);
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
}
