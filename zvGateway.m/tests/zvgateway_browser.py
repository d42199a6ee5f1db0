"""Chromium for the tests of pages: opens a page, types keys, and asks the page what became of it."""
import base64
import json
import os
import select
import shutil
import subprocess
import sys
import tempfile
import time

PROGRAMS = ('chromium', 'chromium-browser', 'google-chrome')
OPTIONS = ('--headless', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
           '--disable-background-networking', '--disable-component-update', '--disable-sync', '--hide-scrollbars')
SECONDS = 60
# In milliseconds, four times what a person should wait for on a machine with nothing else to do: beside other tests a page
# takes longer than alone, but one whose work grows with the square of its rows still takes more than this.
LOADED_WITHIN = 4000
KEY_WITHIN = 400


def find():
    """The browser's program, or None."""
    return next(filter(None, map(shutil.which, PROGRAMS)), None)


class Browser:
    """A browser with one page. It listens on descriptors 3 and 4, messages end with a null byte."""

    def __init__(self, program):
        self.profile = tempfile.mkdtemp()
        theirs_in, self.output = os.pipe()
        self.input, theirs_out = os.pipe()
        command = 'exec 3<&%d 4>&%d; exec "$@"' % (theirs_in, theirs_out)
        self.process = subprocess.Popen(
            ['bash', '-c', command, 'bash', program, *OPTIONS, '--user-data-dir=' + self.profile,
             '--remote-debugging-pipe', 'about:blank'],
            pass_fds=(theirs_in, theirs_out), stderr=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
        os.close(theirs_in)
        os.close(theirs_out)
        self.received = b''
        self.events = []
        self.number = 0
        self.session = None
        target = self.call('Target.createTarget', url='about:blank')['targetId']
        self.session = self.call('Target.attachToTarget', targetId=target, flatten=True)['sessionId']
        for domain in ('Page', 'Network', 'Runtime'):
            self.call(domain + '.enable')

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.terminate()
        try:
            self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        shutil.rmtree(self.profile, ignore_errors=True)

    def message(self, deadline):
        while b'\0' not in self.received:
            if not select.select([self.input], [], [], max(0, deadline - time.monotonic()))[0]:
                raise TimeoutError('the browser does not answer')
            data = os.read(self.input, 1 << 20)
            if not data:
                raise EOFError('the browser ended')
            self.received += data
        message, _, self.received = self.received.partition(b'\0')
        return json.loads(message)

    def call(self, method, **parameters):
        self.number += 1
        request = {'id': self.number, 'method': method, 'params': parameters}
        if self.session:
            request['sessionId'] = self.session
        os.write(self.output, json.dumps(request).encode() + b'\0')
        deadline = time.monotonic() + SECONDS
        while True:
            message = self.message(deadline)
            if message.get('id') == self.number:
                if 'error' in message:
                    raise RuntimeError('%s: %s' % (method, message['error']))
                return message['result']
            self.events.append(message)

    def await_event(self, method):
        deadline = time.monotonic() + SECONDS
        while not any(event.get('method') == method for event in self.events):
            self.events.append(self.message(deadline))

    def window(self, width, height, scheme='light'):
        self.call('Emulation.setDeviceMetricsOverride', width=width, height=height, deviceScaleFactor=1, mobile=False)
        self.call('Emulation.setEmulatedMedia', features=[{'name': 'prefers-color-scheme', 'value': scheme}])

    def open(self, url):
        """Returns once the page is loaded."""
        for address in ('about:blank', url):  # what differs after its "#" only would not be loaded again
            self.events.clear()
            self.call('Page.navigate', url=address)
            self.await_event('Page.loadEventFired')
        self.rest()

    def requests(self):
        """What the page, and nothing else, has asked for since it was opened."""
        return [event['params']['request']['url'] for event in self.events
                if event.get('method') == 'Network.requestWillBeSent']

    def ask(self, expression):
        """The value of a JavaScript expression, which may be a promise."""
        result = self.call('Runtime.evaluate', expression=expression, awaitPromise=True, returnByValue=True)
        if 'exceptionDetails' in result:
            raise RuntimeError('%s: %s' % (expression, result['exceptionDetails']))
        return result['result'].get('value')

    def rest(self):
        """Returns once what was done is painted."""
        self.ask('new Promise(done => requestAnimationFrame(() => requestAnimationFrame(() => setTimeout(done))))')

    def press(self, key):
        """A key by its name, as in "a", "/" and "Escape"."""
        text = {'text': key} if len(key) == 1 else {}
        code = {'Escape': 27, 'Tab': 9, 'Enter': 13, 'Backspace': 8}.get(key, ord(key[0].upper()))
        self.call('Input.dispatchKeyEvent', type='keyDown', key=key, windowsVirtualKeyCode=code, **text)
        self.call('Input.dispatchKeyEvent', type='keyUp', key=key, windowsVirtualKeyCode=code)
        self.rest()

    def type(self, text):
        for character in text:
            self.press(character)

    def picture(self, file):
        """A picture of the window, as PNG."""
        with open(file, 'wb') as out:
            out.write(base64.b64decode(self.call('Page.captureScreenshot', format='png')['data']))


# What can be seen now: texts of rows, ids of groups and sections.
ROWS = "[...document.querySelectorAll('[data-row]')].filter(row => row.checkVisibility()).map(row => row.innerText)"
GROUPS = "[...document.querySelectorAll('[data-group]')].filter(group => !group.closest('[hidden]')).map(group => group.id)"
SECTIONS = "[...document.querySelectorAll('section')].filter(section => !section.hidden).map(section => section.id)"
# What does not fit into the window; a picture can be scrolled, and a table's head is not shown in a narrow one.
TOO_WIDE = """[...document.querySelectorAll('body *')].filter(element => element.checkVisibility() &&
    !element.closest('figure, thead') && element.getBoundingClientRect().right > innerWidth + 1)
    .map(element => element.outerHTML.slice(0, 80))"""
# How far below the bar what the address names begins.
BELOW_BAR = """(() => {
    const target = document.getElementById(decodeURIComponent(location.hash.slice(1))).getBoundingClientRect();
    return target.top - document.querySelector('.bar').getBoundingClientRect().bottom;
})()"""
# The lowest contrast of a text to what is behind it, and where.
CONTRAST = """(() => {
    const canvas = document.createElement('canvas').getContext('2d', {willReadFrequently: true});
    const pixel = color => {
        canvas.clearRect(0, 0, 1, 1);
        canvas.fillStyle = color;
        canvas.fillRect(0, 0, 1, 1);
        return [...canvas.getImageData(0, 0, 1, 1).data];
    };
    const light = color => pixel(color).slice(0, 3).map(part => part / 255)
        .map(part => part <= 0.04045 ? part / 12.92 : ((part + 0.055) / 1.055) ** 2.4)
        .reduce((sum, part, i) => sum + part * [0.2126, 0.7152, 0.0722][i], 0);
    const behind = element => {
        const color = getComputedStyle(element).backgroundColor;
        return pixel(color)[3] === 255 ? color : behind(element.parentElement);
    };
    let lowest = [99, ''];
    const texts = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
    while (texts.nextNode()) {
        const element = texts.currentNode.parentElement;
        if (!texts.currentNode.data.trim() || !element.checkVisibility()) continue;
        const style = getComputedStyle(element);
        const color = element.closest('svg') ? style.fill : style.color;
        const [dark, bright] = [light(color), light(behind(element))].sort((a, b) => a - b);
        const contrast = (bright + 0.05) / (dark + 0.05);
        if (contrast < lowest[0]) lowest = [contrast, texts.currentNode.data, color, behind(element)];
    }
    return lowest;
})()"""
# Keeps, for each key, the milliseconds until what it did was painted.
CLOCK = """window.answers = []; addEventListener('keydown', event => requestAnimationFrame(() =>
    setTimeout(() => answers.push(performance.now() - event.timeStamp))), true)"""

# What of another one's script and style the page would run: an element of each, and an attribute.
FOREIGN = """(() => {
    const done = [];
    window.foreign = what => done.push(what);
    const add = (name, text) => {
        const element = document.createElement(name);
        element.textContent = text;
        document.body.append(element);
        return element;
    };
    const elements = [add('script', "foreign('script')"), add('style', 'body { outline: 3px solid red }')];
    document.body.setAttribute('onclick', "foreign('attribute')");
    document.body.click();
    if (getComputedStyle(document.body).outlineWidth === '3px' && getComputedStyle(document.body).outlineStyle === 'solid') {
        done.push('style');
    }
    elements.forEach(element => element.remove());
    document.body.removeAttribute('onclick');
    return done;
})()"""

checks = failures = 0


def check(description, passed, seen=''):
    global checks, failures
    checks += 1
    if not passed:
        failures += 1
        print('FAILED: %s\n  seen: %s' % (description, str(seen)[:2000]))


def equal(description, seen, wanted):
    check(description, seen == wanted, '%s instead of %s' % (seen, wanted))


def finish():
    """The end of a test, with its exit code."""
    print('%d checks, %d failures' % (checks, failures))
    sys.exit(failures > 0)
