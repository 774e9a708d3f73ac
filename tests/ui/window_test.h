/// A program with windows, as long as a test runs.
#pragma once

#include <memory>

#include <QApplication>

#include <gtest/gtest.h>

class WindowTest : public testing::Test
{
  protected:
    WindowTest() : m_application(std::make_unique<QApplication>(m_argumentCount, m_arguments)) {}

    int m_argumentCount = 1;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
    std::unique_ptr<QApplication> m_application;
};
