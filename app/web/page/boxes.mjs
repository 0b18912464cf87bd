// The boxes the rules wait on, as modal dialogs of the page: MsgBox with OK, or Yes and No,
// and InputBox with a line to type. While one is open the rest of the page takes no click and
// no key; the rules go on when it is answered.

/// The answers of a box, as the game counts them (core/ui_port.h Answer).
const ANSWER = { ok: 0, yes: 1, no: 2 };

let boxTitle = '';

/// The title every box carries but the two name prompts of NEW GAME, from the game's words.
export function setBoxTitle(title) {
  boxTitle = title;
}

/// A box that waits for OK, or for Yes or No (Escape: No), with a critical mark when asked:
/// the game's MsgBox. Resolves to the answer.
export function msgbox(text, yesNo, critical) {
  const box = document.getElementById('msgbox');
  box.querySelector('.box-title').textContent = boxTitle;
  box.querySelector('.box-text').textContent = text;
  box.querySelector('.box-critical').hidden = !critical;
  const buttons = box.querySelector('.box-buttons');
  const answers = yesNo ? [['Yes', ANSWER.yes], ['No', ANSWER.no]] : [['OK', ANSWER.ok]];
  const escape = yesNo ? ANSWER.no : ANSWER.ok;
  return new Promise((resolve) => {
    const done = (answer) => {
      box.removeEventListener('cancel', onCancel);
      box.close();
      resolve(answer);
    };
    const onCancel = (event) => {
      event.preventDefault();
      done(escape);
    };
    buttons.replaceChildren(...answers.map(([caption, answer]) => {
      const button = document.createElement('button');
      button.type = 'button';
      button.textContent = caption;
      button.addEventListener('click', () => done(answer));
      return button;
    }));
    box.addEventListener('cancel', onCancel);
    box.showModal();
    buttons.firstChild.focus();  // the default answer: OK or Yes
  });
}

/// A box with a prompt and a line to type under its own title: the game's InputBox. OK gives
/// the text, Cancel or Escape the empty text.
export function inputbox(prompt, title) {
  const box = document.getElementById('inputbox');
  const form = box.querySelector('form');
  const field = box.querySelector('input');
  const cancel = box.querySelector('button[value=cancel]');
  box.querySelector('.box-title').textContent = title;
  box.querySelector('.box-text').textContent = prompt;
  field.value = '';
  return new Promise((resolve) => {
    const done = (text) => {
      form.removeEventListener('submit', onSubmit);
      cancel.removeEventListener('click', onCancel);
      box.removeEventListener('cancel', onCancel);
      box.close();
      resolve(text);
    };
    const onSubmit = (event) => {
      event.preventDefault();
      done(field.value);
    };
    const onCancel = (event) => {
      event.preventDefault();
      done('');
    };
    form.addEventListener('submit', onSubmit);
    cancel.addEventListener('click', onCancel);
    box.addEventListener('cancel', onCancel);
    box.showModal();
    field.focus();
  });
}

/// True while a box is open.
export function boxOpen() {
  return document.getElementById('msgbox').open || document.getElementById('inputbox').open;
}
