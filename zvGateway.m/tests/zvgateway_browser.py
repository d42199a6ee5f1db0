"""Chromium for the tests of pages: opens a page, types keys, and asks the page what became of it."""
import base64
import json
import os
import select
import shutil
import subprocess
import tempfile
import time

PROGRAMS = ('chromium', 'chromium-browser', 'google-chrome')
OPTIONS = ('--headless', '--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
           '--disable-background-networking', '--disable-component-update', '--disable-sync', '--hide-scrollbars')
SECONDS = 60


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
