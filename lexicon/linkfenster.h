#pragma once
// The small windows that page links open: extra picture, table, (animated) picture.
#include <QDialog>
#include <string>

namespace lexicon {

// Tzusatzbild: the picture `name` of the page-picture containers, shown alone.
class Tzusatzbild : public QDialog {
    Q_OBJECT
public:
    Tzusatzbild(const std::string& name, QWidget* parent = nullptr);
};

// Tftabelle: a text list of the tool texts shown as a table, columns split at tabs.
class Tftabelle : public QDialog {
    Q_OBJECT
public:
    Tftabelle(const std::string& name, QWidget* parent = nullptr);
};

// TGifform: a picture of bygif.dll (or bkunst.dll), animated if it has several frames.
class TGifform : public QDialog {
    Q_OBJECT
public:
    TGifform(const std::string& name, QWidget* parent = nullptr);
};

}  // namespace lexicon
