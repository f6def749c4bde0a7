// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "Scene.h"

#include <QObject>
#include <QRgb>
#include <QTest>

#include <memory>

/// The base of the tests that use the workbench as a person does, at a screen of their own.
///
/// Each function finds a new scene, in whose home folder are the files of prepare(). The workbench
/// is not started yet. When the function fails, a picture of the screen is written beside the test.
class EndToEndCase : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    /// The two halves of "folder/picture.png", above and below. Orange, so that it can be told from
    /// the pixels of the window, and dark blue.
    static constexpr QRgb PictureTop = qRgb(240, 140, 20);
    static constexpr QRgb PictureBottom = qRgb(20, 40, 120);

    Scene *scene() const { return m_scene.get(); }
    WorkbenchProcess *workbench() const { return m_scene->workbench(); }
    const Person *person() const { return m_scene->person(); }

    /// Another scene, at a screen of this scale.
    void useScale(int scale);

private:
    void prepare();

    std::unique_ptr<Scene> m_scene;
};
