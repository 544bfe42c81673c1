// Lets whatever goes into the name box, on whichever way, pass the name filter.
#pragma once

#include <QValidator>

class NameValidator : public QValidator {
    Q_OBJECT
  public:
    using QValidator::QValidator;

    // Leaves the letters, as capitals, and the blanks in the text. Line ends at its end go in silence.
    State validate(QString& text, int& cursor) const override;

  signals:
    // Something that is neither a letter nor a blank was kept out.
    void rejected() const;
};
