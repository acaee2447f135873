import { describe, expect, it, vi } from 'vitest'
import { FakeService } from './support/FakeService'
import { mountApp, SESSION, type AppUnderTest } from './support/mountApp'

// jsdom has neither pointer events nor pointer capture.
class FakePointerEvent extends MouseEvent {
  readonly pointerId = 1
}

let frames: FrameRequestCallback[] = []

function runFrame(): void {
  const due = frames
  frames = []
  for (const callback of due) callback(0)
}

async function mountMain(): Promise<AppUnderTest> {
  frames = []
  vi.stubGlobal('requestAnimationFrame', (callback: FrameRequestCallback) => frames.push(callback))
  vi.stubGlobal('cancelAnimationFrame', (id: number) => {
    frames.splice(id - 1, 1)
  })
  Element.prototype.setPointerCapture = vi.fn()
  const app = await mountApp({ service: new FakeService(), remembered: SESSION })
  setWindow(1120, 760)
  await vi.waitFor(() => {
    expect(app.part('maximize').attributes('aria-label')).toBe('Maximise')
  })
  app.bridge.calls.splice(0)
  return app
}

function setWindow(width: number, height: number): void {
  vi.stubGlobal('screen', { availWidth: 1920, availHeight: 1040 })
  vi.stubGlobal('innerWidth', width)
  vi.stubGlobal('innerHeight', height)
  window.dispatchEvent(new Event('resize'))
}

function pointer(
  app: AppUnderTest,
  type: string,
  screenX: number,
  screenY: number,
  button = 0,
  on = 'header',
) {
  const event = new FakePointerEvent(type, { screenX, screenY, button, bubbles: true })
  app.page.get(on).element.dispatchEvent(event)
}

describe('dragging the title bar', () => {
  it('moves the window by the pointer, once per frame', async () => {
    const app = await mountMain()
    pointer(app, 'pointerdown', 100, 100)
    expect(app.page.get('header').element.setPointerCapture).toHaveBeenCalledWith(1)
    pointer(app, 'pointermove', 104, 101)
    pointer(app, 'pointermove', 110, 103)
    expect(app.calls('moveWindow')).toHaveLength(0)
    runFrame()
    pointer(app, 'pointermove', 109, 103)
    runFrame()
    runFrame()
    expect(app.bridge.calls).toEqual([
      { name: 'moveWindow', params: { x: 10, y: 3 } },
      { name: 'moveWindow', params: { x: -1, y: 0 } },
    ])
  })

  it('ends where the button is let go', async () => {
    const app = await mountMain()
    pointer(app, 'pointerdown', 0, 0)
    pointer(app, 'pointermove', 5, 5)
    pointer(app, 'pointerup', 8, 9)
    pointer(app, 'pointermove', 50, 50)
    runFrame()
    expect(app.bridge.calls).toEqual([{ name: 'moveWindow', params: { x: 8, y: 9 } }])
  })

  it.each([
    ['with another button', 2, 'header'],
    ['from a button of the title bar', 0, '[data-test="sign-out"]'],
  ])('does not start %s', async (_how, button, on) => {
    const app = await mountMain()
    pointer(app, 'pointerdown', 0, 0, button, on)
    pointer(app, 'pointermove', 5, 5)
    runFrame()
    expect(app.bridge.calls).toEqual([])
  })

  it('does not move a maximised window', async () => {
    const app = await mountMain()
    setWindow(1926, 1046)
    pointer(app, 'pointerdown', 0, 0)
    pointer(app, 'pointermove', 5, 5)
    runFrame()
    expect(app.bridge.calls).toEqual([])
  })
})

describe('the window buttons', () => {
  it('minimise and close', async () => {
    const { part, bridge } = await mountMain()
    await part('minimize').trigger('click')
    await part('close').trigger('click')
    expect(bridge.calls.map((call) => call.name)).toEqual(['minimizeWindow', 'closeWindow'])
  })

  it('maximise, and restore once the window fills the screen, whoever made it', async () => {
    const { part, page, bridge } = await mountMain()
    await part('maximize').trigger('click')
    expect(bridge.calls.map((call) => call.name)).toEqual(['maximizeWindow'])
    setWindow(1926, 1046)
    await vi.waitFor(() => {
      expect(part('maximize').attributes('aria-label')).toBe('Restore')
    })
    expect(page.get('.window').classes()).toContain('maximized')
    await part('maximize').trigger('click')
    expect(bridge.calls.map((call) => call.name)).toEqual(['maximizeWindow', 'restoreWindow'])
  })

  it('are joined by a double click on the title bar, but not on its buttons', async () => {
    const { part, page, bridge } = await mountMain()
    await page.get('header').trigger('dblclick')
    await part('sign-out').trigger('dblclick')
    expect(bridge.calls.map((call) => call.name)).toEqual(['maximizeWindow'])
  })

  it('leave a double click on the sign-in title bar without effect', async () => {
    const { page, calls } = await mountApp()
    await page.get('header').trigger('dblclick')
    expect(calls('maximizeWindow')).toHaveLength(0)
  })
})
